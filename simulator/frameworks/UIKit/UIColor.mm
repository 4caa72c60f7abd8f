#import "UIKit/UIColor.h"

@implementation UIColor

+ (UIColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha {
    UIColor* color = [[[self alloc] init] autorelease];
    color->_white = white;
    color->_alpha = alpha;
    return color;
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
    return [UIColor colorWithWhite:_white alpha:alpha];
}

- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha {
    *red = *green = *blue = _white;
    *alpha = _alpha;
    return YES;
}

- (BOOL)isEqual:(id)other {
    if (![other isKindOfClass:[UIColor class]]) return NO;
    auto* color = static_cast<UIColor*>(other);
    return color->_white == _white && color->_alpha == _alpha ? YES : NO;
}

- (NSUInteger)hash {
    return static_cast<NSUInteger>(_white * 255) * 256 + static_cast<NSUInteger>(_alpha * 255);
}

@end
