// A shade of grey and its opacity, each from 0 to 1: the screens have no other colours of their own yet.
// Immutable; any thread.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@interface UIColor : NSObject {
  @private
    CGFloat _white;
    CGFloat _alpha;
}

+ (UIColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha;
+ (UIColor*)clearColor;
+ (UIColor*)blackColor;
+ (UIColor*)whiteColor;

- (UIColor*)colorWithAlphaComponent:(CGFloat)alpha;
- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha;

@end
