// A colour of red, green, blue and alpha, each from 0 to 1. Immutable; any thread.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@interface UIColor : NSObject <NSCopying> {
  @private
    CGFloat _components[4];
}

+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
+ (UIColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha;
+ (UIColor*)clearColor;
+ (UIColor*)blackColor;
+ (UIColor*)darkGrayColor;
+ (UIColor*)grayColor;
+ (UIColor*)lightGrayColor;
+ (UIColor*)whiteColor;
+ (UIColor*)redColor;
+ (UIColor*)greenColor;
+ (UIColor*)blueColor;
+ (UIColor*)yellowColor;
+ (UIColor*)orangeColor;

- (UIColor*)colorWithAlphaComponent:(CGFloat)alpha;
- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha;

@end
