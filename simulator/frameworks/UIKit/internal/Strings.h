// Between the platform's strings and C++'s.
#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace simulator {

// Empty for nil.
inline std::string toStd(NSString* text) { return text ? [text UTF8String] : std::string(); }

inline NSString* toNS(std::string_view text) {
    return [[[NSString alloc] initWithBytes:text.data() length:text.size()
                                   encoding:NSUTF8StringEncoding] autorelease];
}

} // namespace simulator
