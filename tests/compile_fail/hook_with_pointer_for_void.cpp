// expect: the function's types are not those of the type encoding
// A pointer may stand for a void result only where the row says so by name.
#include "objc/nsobject.h"
#include "objc/replacement.h"

namespace rollkeeper {

NSObject performActivity(NSObject, SEL) { return NSObject(); }

#ifdef MUST_FAIL
extern constexpr HookFunction row = replacement<"v@:", performActivity>();
#else
extern constexpr HookFunction row = replacement<"v@:", performActivity, ResultRule::pointerDespiteVoid>();
#endif

} // namespace rollkeeper
