// expect: the function's types are not those of the type encoding
// A replacement that takes an int where the method takes a BOOL would read garbage on a phone.
#include "objc/nsobject.h"
#include "objc/replacement.h"

namespace rollkeeper {

#ifdef MUST_FAIL
void viewWillAppear(NSObject, SEL, int) {}
#else
void viewWillAppear(NSObject, SEL, bool) {}
#endif

extern constexpr HookFunction row = replacement<"v@:B", viewWillAppear>();

} // namespace rollkeeper
