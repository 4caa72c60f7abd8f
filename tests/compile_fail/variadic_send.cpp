// expect: no message is variadic
#include "platform/foundation.h"

namespace rollkeeper {

NSString describe(NSString text) {
#ifdef MUST_FAIL
    return sendToClass<NSString, "stringWithFormat:", NSString>(text);
#else
    return text.stringByAppendingString(text);
#endif
}

} // namespace rollkeeper
