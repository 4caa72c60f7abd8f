// expect: constraints not satisfied
// A handle is passed in place of the pointer that it holds, and so holds nothing else.
#include "objc/owner.h"

namespace rollkeeper {

struct Face : NSObject {
    static constexpr FixedString className = "Face";
#ifdef MUST_FAIL
    int cached = 0;
#endif
};

void convert(Object object) { (void)cast<Face>(object); }

} // namespace rollkeeper
