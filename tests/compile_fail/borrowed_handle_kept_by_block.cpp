// expect: a block keeps owners and plain values, never a borrowed handle
// The object behind a borrowed handle may be gone when the block runs.
#include "platform/foundation.h"

namespace rollkeeper {

Owner<Block> later(NSArray array) {
    const auto count = [](NSArray kept) { (void)kept.count(); };
#ifdef MUST_FAIL
    return block<void()>(count, array);
#else
    return block<void()>(count, share(array));
#endif
}

} // namespace rollkeeper
