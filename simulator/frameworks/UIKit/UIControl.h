// Controls: views that tell their targets what the user did with them, and what the user types into.
#pragma once

#import "UIKit/UIView.h"

@class UIFont, UIImage, UIImageView, UILabel;

typedef NS_OPTIONS(NSUInteger, UIControlEvents) {
    UIControlEventTouchUpInside = 1 << 6,
    UIControlEventValueChanged = 1 << 12,
};

typedef NS_OPTIONS(NSUInteger, UIControlState) { UIControlStateNormal = 0 };

typedef NS_ENUM(NSInteger, UIButtonType) { UIButtonTypeCustom = 0 };

@interface UIControl : UIView {
  @private
    id _target;
    SEL _action;
    UIControlEvents _events;
}

// A control has one target, which is not retained; the action may take the control or nothing.
- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events;
- (void)sendActionsForControlEvents:(UIControlEvents)events;

@end

// Shows a picture and a title. The normal state is the only one.
@interface UIButton : UIControl {
  @private
    UILabel* _titleLabel;
    UIImageView* _imageView;
}

+ (instancetype)buttonWithType:(UIButtonType)type;

- (void)setTitle:(NSString*)title forState:(UIControlState)state;
- (void)setImage:(UIImage*)image forState:(UIControlState)state;

@end

@interface UISwitch : UIControl {
  @private
    BOOL _on;
}

@property (nonatomic, getter=isOn) BOOL on;
- (void)setOn:(BOOL)on animated:(BOOL)animated;

@end

// The user types one line of text into it.
@interface UITextField : UIControl {
  @private
    NSString* _text;
    NSString* _placeholder;
    UIFont* _font;
    BOOL _secureTextEntry;
}

// Never nil: the empty string when nothing was typed.
@property (nonatomic, copy) NSString* text;
@property (nonatomic, copy) NSString* placeholder;
// The system font of 17 points unless set.
@property (nonatomic, retain) UIFont* font;
@property (nonatomic, getter=isSecureTextEntry) BOOL secureTextEntry;

@end
