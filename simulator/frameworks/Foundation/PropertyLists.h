// What a property list is on the device.
#pragma once

#import <Foundation/Foundation.h>

namespace simulator {

// Whether the value consists of strings, numbers, dates, data, arrays and dictionaries with strings as keys
// alone.
bool isPropertyList(id value);

} // namespace simulator
