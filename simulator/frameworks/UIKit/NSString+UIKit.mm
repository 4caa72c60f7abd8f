#import "UIKit/NSString+UIKit.h"

#import "UIKit/internal/Text.h"

#include <limits>

@implementation NSString (UIKit)

- (CGSize)sizeWithFont:(UIFont*)font {
    constexpr CGFloat endless = std::numeric_limits<CGFloat>::max();
    return [self sizeWithFont:font
            constrainedToSize:{endless, endless}
                lineBreakMode:NSLineBreakByWordWrapping];
}

- (CGSize)sizeWithFont:(UIFont*)font
     constrainedToSize:(CGSize)size
         lineBreakMode:(NSLineBreakMode)lineBreakMode {
    const bool anywhere = lineBreakMode == NSLineBreakByCharWrapping;
    return simulator::sizeOfText(
        self, font, size, anywhere ? simulator::LineBreaking::characters : simulator::LineBreaking::words);
}

@end
