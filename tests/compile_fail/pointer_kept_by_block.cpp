// expect: a block keeps owners and plain values, never a borrowed handle
#include "objc/block.h"

namespace rollkeeper {

#ifdef MUST_FAIL
Owner<Block> later(const char* text) {
    return block<void()>([](const char*) {}, text);
}
#else
Owner<Block> later(int number) {
    return block<void()>([](int) {}, number);
}
#endif

} // namespace rollkeeper
