// Property lists as they look in the files of the device.
#pragma once

#import <Foundation/Foundation.h>

namespace simulator {

// The XML form, as the device writes it; nil for what does not consist of strings, numbers, dates, data,
// arrays and dictionaries with strings as keys alone. GNUstep's own writer takes anything, and spoils every
// text with letters beyond the basic plane, such as emoji.
NSData* propertyListAsXml(id value);

// The value in a file of any form; nil when it is damaged.
id propertyListIn(NSData* file);

} // namespace simulator
