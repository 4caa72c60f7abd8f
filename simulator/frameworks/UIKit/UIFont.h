// A typeface at a size in points. Immutable; any thread.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@interface UIFont : NSObject <NSCopying> {
  @private
    CGFloat _pointSize;
    BOOL _bold;
}

+ (UIFont*)systemFontOfSize:(CGFloat)size;
+ (UIFont*)boldSystemFontOfSize:(CGFloat)size;

@property (nonatomic, readonly) CGFloat pointSize;
@property (nonatomic, readonly) CGFloat lineHeight;
@property (nonatomic, readonly, getter=isBold) BOOL bold;

- (UIFont*)fontWithSize:(CGFloat)size;

@end
