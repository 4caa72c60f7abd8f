// The bridge from strings and fonts to text measurement.
#pragma once

#import "UIKit/UIFont.h"
#include "UIKit/model/TextMetrics.h"

namespace simulator {

TextStyle textStyle(UIFont* font); // of the default font for nil
CGSize sizeOfText(NSString* text, UIFont* font, CGSize constraint, LineBreaking breaking,
                  NSInteger maximumLines = 0);

// The lines of the text, as they fit into a width.
NSArray* linesOfText(NSString* text, UIFont* font, CGFloat width);

} // namespace simulator
