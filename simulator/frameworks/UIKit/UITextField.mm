#import "UIKit/UITextField.h"

#import "UIKit/UIColor.h"
#import "UIKit/UIFont.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/Ownership.h"

using simulator::mainThreadOnly;
using simulator::Retained;

namespace simulator {

struct TextFieldState {
    Retained<NSString*> text = @"";
    Retained<NSString*> placeholder;
    Retained<UIFont*> font = [UIFont systemFontOfSize:17];
    Retained<UIColor*> textColor = [UIColor blackColor];
    NSTextAlignment alignment = NSTextAlignmentLeft;
    Weak delegate;
    bool secure = false;
};

} // namespace simulator

@implementation UITextField

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _textFieldState = new simulator::TextFieldState;
    return self;
}

- (void)dealloc {
    delete _textFieldState;
    [super dealloc];
}

- (NSString*)text {
    mainThreadOnly(self, _cmd);
    return _textFieldState->text.autoreleased();
}

- (void)setText:(NSString*)text {
    mainThreadOnly(self, _cmd);
    _textFieldState->text = Retained<NSString*>::copyOf(text ? text : @"");
}

- (NSString*)placeholder {
    mainThreadOnly(self, _cmd);
    return _textFieldState->placeholder.autoreleased();
}

- (void)setPlaceholder:(NSString*)placeholder {
    mainThreadOnly(self, _cmd);
    _textFieldState->placeholder = Retained<NSString*>::copyOf(placeholder);
}

- (UIFont*)font {
    mainThreadOnly(self, _cmd);
    return _textFieldState->font.autoreleased();
}

- (void)setFont:(UIFont*)font {
    mainThreadOnly(self, _cmd);
    _textFieldState->font = font ? font : [UIFont systemFontOfSize:17];
}

- (UIColor*)textColor {
    mainThreadOnly(self, _cmd);
    return _textFieldState->textColor.autoreleased();
}

- (void)setTextColor:(UIColor*)color {
    mainThreadOnly(self, _cmd);
    _textFieldState->textColor = color;
}

- (NSTextAlignment)textAlignment {
    mainThreadOnly(self, _cmd);
    return _textFieldState->alignment;
}

- (void)setTextAlignment:(NSTextAlignment)alignment {
    mainThreadOnly(self, _cmd);
    _textFieldState->alignment = alignment;
}

- (BOOL)isSecureTextEntry {
    mainThreadOnly(self, _cmd);
    return _textFieldState->secure ? YES : NO;
}

- (void)setSecureTextEntry:(BOOL)secure {
    mainThreadOnly(self, _cmd);
    _textFieldState->secure = secure;
}

- (BOOL)isEditing {
    return [self isFirstResponder];
}

- (id)delegate {
    mainThreadOnly(self, _cmd);
    return _textFieldState->delegate.get();
}

- (void)setDelegate:(id)delegate {
    mainThreadOnly(self, _cmd);
    _textFieldState->delegate = delegate;
}

- (BOOL)canBecomeFirstResponder {
    return [self isEnabled];
}

- (BOOL)becomeFirstResponder {
    if ([self isFirstResponder]) return YES;
    id delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(textFieldShouldBeginEditing:)] &&
        ![delegate textFieldShouldBeginEditing:self])
        return NO;
    if (![super becomeFirstResponder]) return NO;
    if ([delegate respondsToSelector:@selector(textFieldDidBeginEditing:)])
        [delegate textFieldDidBeginEditing:self];
    [self sendActionsForControlEvents:UIControlEventEditingDidBegin];
    return YES;
}

- (BOOL)resignFirstResponder {
    if (![self isFirstResponder]) return YES;
    [super resignFirstResponder];
    id delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(textFieldDidEndEditing:)])
        [delegate textFieldDidEndEditing:self];
    [self sendActionsForControlEvents:UIControlEventEditingDidEnd];
    return YES;
}

@end
