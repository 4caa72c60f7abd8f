// expect: constraints not satisfied
// A handle is passed in place of the pointer that it holds, and so holds nothing else.
#include "objc/owner.h"

namespace rollkeeper {

struct Wrapper : NSObject {
    static constexpr FixedString className = "Wrapper";
#ifdef MUST_FAIL
    int cached = 0;
#endif
};

void convert(Object object) { (void)cast<Wrapper>(object); }

} // namespace rollkeeper
