// Text as Foundation's strings and back, UTF-8 both ways.
#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace simulator {

// Empty for nil.
inline std::string text(NSString* string) { return string == nil ? std::string() : [string UTF8String]; }

// Autoreleased; nil for what is no UTF-8.
inline NSString* string(std::string_view text) {
    return [[[NSString alloc] initWithBytes:text.data() length:text.size()
                                   encoding:NSUTF8StringEncoding] autorelease];
}

} // namespace simulator
