// expect: implicit instantiation of undefined template 'rollkeeper::TypeEncoding<short>'
// Only types that both ends agree on can take part in a message.
#include "objc/nsobject.h"
#include "objc/replacement.h"

namespace rollkeeper {

#ifdef MUST_FAIL
void setCount(NSObject, SEL, short) {}
#else
void setCount(NSObject, SEL, int) {}
#endif

extern constexpr HookFunction row = addition<"v@:i", setCount>();

} // namespace rollkeeper
