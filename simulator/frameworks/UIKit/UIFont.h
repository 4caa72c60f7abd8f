// Typefaces, and the room that text takes. Any thread.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

typedef NS_ENUM(NSInteger, NSTextAlignment) { NSTextAlignmentLeft = 0, NSTextAlignmentCenter = 1 };

typedef NS_ENUM(NSInteger, NSLineBreakMode) { NSLineBreakByTruncatingTail = 4 };

// A typeface at a size in points. Immutable.
@interface UIFont : NSObject {
  @private
    CGFloat _pointSize;
    BOOL _bold;
}

+ (UIFont*)systemFontOfSize:(CGFloat)size;
+ (UIFont*)boldSystemFontOfSize:(CGFloat)size;

@property (nonatomic, readonly) CGFloat pointSize;
@property (nonatomic, readonly) CGFloat lineHeight;
@property (nonatomic, readonly, getter=isBold) BOOL bold;

@end

@interface NSString (UIKit)

// The size in points that the text takes when it is laid out within `size`; never larger than `size`.
- (CGSize)sizeWithFont:(UIFont*)font
     constrainedToSize:(CGSize)size
         lineBreakMode:(NSLineBreakMode)lineBreakMode;

@end
