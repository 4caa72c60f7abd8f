#import "UIKit/UIColor.h"

#include <algorithm>

@implementation UIColor

+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha {
    UIColor* color = [[[self alloc] init] autorelease];
    const CGFloat components[] = {red, green, blue, alpha};
    std::ranges::copy(components, color->_components);
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

+ (UIColor*)darkGrayColor {
    return [self colorWithWhite:1.0 / 3 alpha:1];
}

+ (UIColor*)grayColor {
    return [self colorWithWhite:0.5 alpha:1];
}

+ (UIColor*)lightGrayColor {
    return [self colorWithWhite:2.0 / 3 alpha:1];
}

+ (UIColor*)whiteColor {
    return [self colorWithWhite:1 alpha:1];
}

+ (UIColor*)redColor {
    return [self colorWithRed:1 green:0 blue:0 alpha:1];
}

+ (UIColor*)greenColor {
    return [self colorWithRed:0 green:1 blue:0 alpha:1];
}

+ (UIColor*)blueColor {
    return [self colorWithRed:0 green:0 blue:1 alpha:1];
}

+ (UIColor*)yellowColor {
    return [self colorWithRed:1 green:1 blue:0 alpha:1];
}

+ (UIColor*)orangeColor {
    return [self colorWithRed:1 green:0.5 blue:0 alpha:1];
}

- (UIColor*)colorWithAlphaComponent:(CGFloat)alpha {
    return [UIColor colorWithRed:_components[0] green:_components[1] blue:_components[2] alpha:alpha];
}

- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha {
    CGFloat* const wanted[] = {red, green, blue, alpha};
    for (int i = 0; i < 4; ++i)
        if (wanted[i]) *wanted[i] = _components[i];
    return YES;
}

- (id)copyWithZone:(NSZone*)zone {
    return [self retain];
}

- (BOOL)isEqual:(id)other {
    if (![other isKindOfClass:[UIColor class]]) return NO;
    return std::ranges::equal(_components, static_cast<UIColor*>(other)->_components) ? YES : NO;
}

- (NSUInteger)hash {
    NSUInteger hash = 0;
    for (const CGFloat component : _components)
        hash = hash * 257 + static_cast<NSUInteger>(component * 255);
    return hash;
}

@end
