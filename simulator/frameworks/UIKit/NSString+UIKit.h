// Text measurement by the glyph widths that model/TextMetrics.h describes. Any thread.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@class UIFont;

typedef NS_ENUM(NSInteger, NSTextAlignment) {
    NSTextAlignmentLeft = 0,
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
    NSTextAlignmentJustified = 3,
    NSTextAlignmentNatural = 4,
};

typedef NS_ENUM(NSInteger, NSLineBreakMode) {
    NSLineBreakByWordWrapping = 0,
    NSLineBreakByCharWrapping = 1,
    NSLineBreakByClipping = 2,
    NSLineBreakByTruncatingHead = 3,
    NSLineBreakByTruncatingTail = 4,
    NSLineBreakByTruncatingMiddle = 5,
};

@interface NSString (UIKit)

- (CGSize)sizeWithFont:(UIFont*)font;
// The size in points that the text takes when it is laid out within `size`; never larger than `size`.
- (CGSize)sizeWithFont:(UIFont*)font
     constrainedToSize:(CGSize)size
         lineBreakMode:(NSLineBreakMode)lineBreakMode;

@end
