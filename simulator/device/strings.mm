#include "device/strings.h"

namespace simulator {

std::string text(NSString* string) {
    const char* bytes = [string UTF8String];
    return bytes ? bytes : "";
}

NSString* string(const std::string& text) {
    return [[[NSString alloc] initWithBytes:text.data() length:text.size()
                                   encoding:NSUTF8StringEncoding] autorelease];
}

} // namespace simulator
