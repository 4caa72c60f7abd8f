// A colour and its opacity, each part from 0 to 1. Immutable; any thread.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

#include <array>

@interface UIColor : NSObject {
  @private
    std::array<CGFloat, 4> _parts; // red, green, blue, alpha
}

+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
+ (UIColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha;
+ (UIColor*)clearColor;
+ (UIColor*)blackColor;
+ (UIColor*)whiteColor;

- (UIColor*)colorWithAlphaComponent:(CGFloat)alpha;
- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha;

@end
