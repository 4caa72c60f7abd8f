// expect: only a pointer may be handed on in place of nothing
#include "objc/nsobject.h"
#include "objc/replacement.h"

namespace rollkeeper {

#ifdef MUST_FAIL
double performActivity(NSObject, SEL) { return 0; }
#else
NSObject performActivity(NSObject, SEL) { return NSObject(); }
#endif

extern constexpr HookFunction row = replacement<"v@:", performActivity, ResultRule::pointerDespiteVoid>();

} // namespace rollkeeper
