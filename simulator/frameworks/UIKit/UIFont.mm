#import "UIKit/UIFont.h"

#import "UIKit/internal/Text.h"

@implementation UIFont

@synthesize pointSize = _pointSize, bold = _bold;

+ (UIFont*)systemFontOfSize:(CGFloat)size {
    UIFont* font = [[[self alloc] init] autorelease];
    font->_pointSize = size;
    return font;
}

+ (UIFont*)boldSystemFontOfSize:(CGFloat)size {
    UIFont* font = [self systemFontOfSize:size];
    font->_bold = YES;
    return font;
}

- (BOOL)isEqual:(id)other {
    if (![other isKindOfClass:[UIFont class]]) return NO;
    return [other pointSize] == _pointSize && [other isBold] == _bold ? YES : NO;
}

- (NSUInteger)hash {
    return static_cast<NSUInteger>(_pointSize * 2) + _bold;
}

- (CGFloat)lineHeight {
    return simulator::lineHeight(_pointSize);
}

@end

@implementation NSString (UIKit)

- (CGSize)sizeWithFont:(UIFont*)font
     constrainedToSize:(CGSize)size
         lineBreakMode:(NSLineBreakMode)lineBreakMode {
    return simulator::sizeOfText(self, font, size);
}

@end
