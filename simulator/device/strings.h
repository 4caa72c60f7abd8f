// Text as Foundation's strings and back, UTF-8 both ways.
#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace simulator {

std::string text(NSString* string);        // empty for nil
NSString* string(const std::string& text); // autoreleased

} // namespace simulator
