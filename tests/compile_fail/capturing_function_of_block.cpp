// expect: the function of a block captures nothing: name what it keeps
#include "platform/foundation.h"

namespace rollkeeper {

Owner<Block> later(Owner<NSArray> array) {
#ifdef MUST_FAIL
    return block<void()>([array] { (void)array->count(); });
#else
    return block<void()>([](NSArray kept) { (void)kept.count(); }, array);
#endif
}

} // namespace rollkeeper
