#import "UIKit/UIColor.h"

@implementation UIColor

+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha {
    UIColor* color = [[[self alloc] init] autorelease];
    color->_parts = {red, green, blue, alpha};
    return color;
}

+ (UIColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha {
    return [self colorWithRed:white green:white blue:white alpha:alpha];
}

+ (UIColor*)clearColor {
    return [self colorWithWhite:0 alpha:0];
}

+ (UIColor*)blackColor {
    return [self colorWithWhite:0 alpha:1];
}

+ (UIColor*)whiteColor {
    return [self colorWithWhite:1 alpha:1];
}

- (UIColor*)colorWithAlphaComponent:(CGFloat)alpha {
    return [UIColor colorWithRed:_parts[0] green:_parts[1] blue:_parts[2] alpha:alpha];
}

- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha {
    *red = _parts[0];
    *green = _parts[1];
    *blue = _parts[2];
    *alpha = _parts[3];
    return YES;
}

- (BOOL)isEqual:(id)other {
    if (![other isKindOfClass:[UIColor class]]) return NO;
    return static_cast<UIColor*>(other)->_parts == _parts ? YES : NO;
}

- (NSUInteger)hash {
    NSUInteger hash = 0;
    for (const CGFloat part : _parts)
        hash = hash * 256 + static_cast<NSUInteger>(part * 255);
    return hash;
}

@end
