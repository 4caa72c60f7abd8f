// expect: the first parameter of a method is its receiver
#include "objc/nsobject.h"
#include "objc/replacement.h"

namespace rollkeeper {

#ifdef MUST_FAIL
void layoutSubviews(int, SEL) {}
#else
void layoutSubviews(NSObject, SEL) {}
#endif

extern constexpr HookFunction row = addition<"v@:", layoutSubviews>();

} // namespace rollkeeper
