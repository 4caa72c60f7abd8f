#import "UIKit/UILabel.h"

#import "UIKit/UIColor.h"
#import "UIKit/UIFont.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/Ownership.h"
#import "UIKit/internal/Text.h"

#include <limits>

using simulator::mainThreadOnly;
using simulator::Retained;

namespace simulator {

struct LabelState {
    Retained<NSString*> text;
    Retained<UIFont*> font = [UIFont systemFontOfSize:17];
    Retained<UIColor*> textColor = [UIColor blackColor];
    NSTextAlignment alignment = NSTextAlignmentLeft;
    NSLineBreakMode lineBreakMode = NSLineBreakByTruncatingTail;
    NSInteger numberOfLines = 1;
    UIBaselineAdjustment baselineAdjustment = UIBaselineAdjustmentAlignBaselines;
    CGFloat minimumScaleFactor = 0;
    bool fitsFontSize = false;
    bool fitsLetterSpacing = false;
    bool enabled = true;
};

} // namespace simulator

@implementation UILabel

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _labelState = new simulator::LabelState;
    [self setUserInteractionEnabled:NO];
    [self setOpaque:NO];
    return self;
}

- (void)dealloc {
    delete _labelState;
    [super dealloc];
}

// The override exists on the device, too, where it is more than its superclass's.
- (void)setUserInteractionEnabled:(BOOL)enabled {
    [super setUserInteractionEnabled:enabled];
}

- (NSString*)text {
    mainThreadOnly(self, _cmd);
    return _labelState->text.autoreleased();
}

- (void)setText:(NSString*)text {
    mainThreadOnly(self, _cmd);
    _labelState->text = Retained<NSString*>::copyOf(text);
}

- (UIFont*)font {
    mainThreadOnly(self, _cmd);
    return _labelState->font.autoreleased();
}

- (void)setFont:(UIFont*)font {
    mainThreadOnly(self, _cmd);
    _labelState->font = font ? font : [UIFont systemFontOfSize:17];
}

- (UIColor*)textColor {
    mainThreadOnly(self, _cmd);
    return _labelState->textColor.autoreleased();
}

- (void)setTextColor:(UIColor*)color {
    mainThreadOnly(self, _cmd);
    _labelState->textColor = color ? color : [UIColor blackColor];
}

- (NSTextAlignment)textAlignment {
    mainThreadOnly(self, _cmd);
    return _labelState->alignment;
}

- (void)setTextAlignment:(NSTextAlignment)alignment {
    mainThreadOnly(self, _cmd);
    _labelState->alignment = alignment;
}

- (NSLineBreakMode)lineBreakMode {
    mainThreadOnly(self, _cmd);
    return _labelState->lineBreakMode;
}

- (void)setLineBreakMode:(NSLineBreakMode)mode {
    mainThreadOnly(self, _cmd);
    _labelState->lineBreakMode = mode;
}

- (NSInteger)numberOfLines {
    mainThreadOnly(self, _cmd);
    return _labelState->numberOfLines;
}

- (void)setNumberOfLines:(NSInteger)lines {
    mainThreadOnly(self, _cmd);
    _labelState->numberOfLines = lines;
}

- (UIBaselineAdjustment)baselineAdjustment {
    mainThreadOnly(self, _cmd);
    return _labelState->baselineAdjustment;
}

- (void)setBaselineAdjustment:(UIBaselineAdjustment)adjustment {
    mainThreadOnly(self, _cmd);
    _labelState->baselineAdjustment = adjustment;
}

- (BOOL)adjustsFontSizeToFitWidth {
    mainThreadOnly(self, _cmd);
    return _labelState->fitsFontSize ? YES : NO;
}

- (void)setAdjustsFontSizeToFitWidth:(BOOL)adjusts {
    mainThreadOnly(self, _cmd);
    _labelState->fitsFontSize = adjusts;
}

- (BOOL)adjustsLetterSpacingToFitWidth {
    mainThreadOnly(self, _cmd);
    return _labelState->fitsLetterSpacing ? YES : NO;
}

- (void)setAdjustsLetterSpacingToFitWidth:(BOOL)adjusts {
    mainThreadOnly(self, _cmd);
    _labelState->fitsLetterSpacing = adjusts;
}

- (CGFloat)minimumScaleFactor {
    mainThreadOnly(self, _cmd);
    return _labelState->minimumScaleFactor;
}

- (void)setMinimumScaleFactor:(CGFloat)factor {
    mainThreadOnly(self, _cmd);
    _labelState->minimumScaleFactor = factor;
}

- (BOOL)isEnabled {
    mainThreadOnly(self, _cmd);
    return _labelState->enabled ? YES : NO;
}

- (void)setEnabled:(BOOL)enabled {
    mainThreadOnly(self, _cmd);
    _labelState->enabled = enabled;
}

- (CGSize)sizeThatFits:(CGSize)size {
    constexpr CGFloat endless = std::numeric_limits<CGFloat>::max();
    const CGFloat width = size.width > 0 && _labelState->numberOfLines != 1 ? size.width : endless;
    return simulator::sizeOfText(_labelState->text.get(), _labelState->font.get(), {width, endless},
                                 simulator::LineBreaking::words, _labelState->numberOfLines);
}

@end
