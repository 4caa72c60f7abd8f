#include "platform/foundation.h"

namespace rollkeeper {

namespace {

// Asked for twice: the platform raises wherever a constant that is nil is handed on as a key or a format.
Owner<NSString> makeConstant(const char* text) {
    const NSString made = NSString::stringWithUTF8String(text);
    return share(made ? made : NSString::stringWithUTF8String(text));
}

} // namespace

NSString detail::stringOf(ConstantString& constant) {
    id known = constant.made.load();
    if (!known) [[unlikely]] {
        Owner<NSString> made = makeConstant(constant.text);
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
