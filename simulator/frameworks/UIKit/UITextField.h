// A control into which the user types one line of text.
#pragma once

#import "UIKit/NSString+UIKit.h"
#import "UIKit/UIControl.h"

@class UIFont;

namespace simulator {
struct TextFieldState;
}

@interface UITextField : UIControl {
  @private
    simulator::TextFieldState* _textFieldState;
}

// Never nil: the empty string when nothing was typed.
@property (nonatomic, copy) NSString* text;
@property (nonatomic, copy) NSString* placeholder;
@property (nonatomic, retain) UIFont* font;
@property (nonatomic, retain) UIColor* textColor;
@property (nonatomic) NSTextAlignment textAlignment;
@property (nonatomic, getter=isSecureTextEntry) BOOL secureTextEntry;
@property (nonatomic, readonly, getter=isEditing) BOOL editing;
// Not retained; nil once it is gone.
@property (nonatomic, assign) id delegate;

@end

@protocol UITextFieldDelegate <NSObject>
@optional
- (BOOL)textFieldShouldBeginEditing:(UITextField*)field;
- (void)textFieldDidBeginEditing:(UITextField*)field;
- (BOOL)textField:(UITextField*)field
    shouldChangeCharactersInRange:(NSRange)range
                replacementString:(NSString*)replacement;
- (void)textFieldDidEndEditing:(UITextField*)field;
@end
