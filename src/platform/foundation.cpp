#include "platform/foundation.h"

namespace rollkeeper {

NSString detail::stringOf(ConstantString& constant) {
    id known = constant.made.load();
    if (!known) [[unlikely]] {
        Owner<NSString> made = share(NSString::stringWithUTF8String(constant.text));
        if (constant.made.storeIfEmpty(made.get().pointer)) return made.leak();
        known = constant.made.load();
    }
    return cast<NSString>(Object{known});
}

NSString decimalString(NSUInteger number) {
    char digits[24];
    char* start = digits + sizeof digits - 1;
    *start = '\0';
    do {
        *--start = static_cast<char>('0' + number % 10);
        number /= 10;
    } while (number != 0);
    return NSString::stringWithUTF8String(start);
}

} // namespace rollkeeper
