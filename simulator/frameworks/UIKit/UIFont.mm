#import "UIKit/UIFont.h"

#import "UIKit/internal/Text.h"

@implementation UIFont

@synthesize pointSize = _pointSize;
@synthesize bold = _bold;

+ (UIFont*)fontOfSize:(CGFloat)size bold:(BOOL)bold {
    UIFont* font = [[[self alloc] init] autorelease];
    font->_pointSize = size;
    font->_bold = bold;
    return font;
}

+ (UIFont*)systemFontOfSize:(CGFloat)size {
    return [self fontOfSize:size bold:NO];
}

+ (UIFont*)boldSystemFontOfSize:(CGFloat)size {
    return [self fontOfSize:size bold:YES];
}

- (CGFloat)lineHeight {
    return simulator::lineHeight(simulator::textStyle(self));
}

- (UIFont*)fontWithSize:(CGFloat)size {
    return [UIFont fontOfSize:size bold:_bold];
}

- (id)copyWithZone:(NSZone*)zone {
    return [self retain];
}

- (BOOL)isEqual:(id)other {
    if (![other isKindOfClass:[UIFont class]]) return NO;
    return [other pointSize] == _pointSize && [other isBold] == _bold ? YES : NO;
}

- (NSUInteger)hash {
    return static_cast<NSUInteger>(_pointSize * 2) + _bold;
}

@end
