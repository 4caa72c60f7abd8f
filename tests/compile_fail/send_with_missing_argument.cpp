// expect: a selector has one colon for each argument
#include "platform/foundation.h"

namespace rollkeeper {

#ifdef MUST_FAIL
bool write(NSArray array, NSString path) {
    return send<NSArray, "writeToFile:atomically:", bool>(array, path);
}
#else
bool write(NSArray array, NSString path) { return array.writeToFile(path, true); }
#endif

} // namespace rollkeeper
