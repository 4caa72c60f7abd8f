// What a property list is on the device, and how it looks in a file.
#pragma once

#import <Foundation/Foundation.h>

namespace simulator {

// Whether the value consists of strings, numbers, dates, data, arrays and dictionaries with strings as keys
// alone.
bool isPropertyList(id value);

// The XML form, as the device writes it; nil for what is no property list. GNUstep's own writer spoils every
// text with letters beyond the basic plane, such as emoji.
NSData* propertyListAsXml(id value);

} // namespace simulator
