// A control that shows a title or a picture and is tapped.
#pragma once

#import "UIKit/UIControl.h"

@class UIFont, UIImage, UIImageView, UILabel;

namespace simulator {
struct ButtonState;
}

typedef NS_ENUM(NSInteger, UIButtonType) {
    UIButtonTypeCustom = 0,
    UIButtonTypeSystem = 1,
};

@interface UIButton : UIControl {
  @private
    simulator::ButtonState* _buttonState;
}

+ (instancetype)buttonWithType:(UIButtonType)type;

- (void)setTitle:(NSString*)title forState:(UIControlState)state;
- (NSString*)titleForState:(UIControlState)state;
- (void)setTitleColor:(UIColor*)color forState:(UIControlState)state;
- (UIColor*)titleColorForState:(UIControlState)state;
- (void)setImage:(UIImage*)image forState:(UIControlState)state;
- (UIImage*)imageForState:(UIControlState)state;
- (void)setBackgroundImage:(UIImage*)image forState:(UIControlState)state;
- (UIImage*)backgroundImageForState:(UIControlState)state;

@property (nonatomic, readonly) UIButtonType buttonType;
@property (nonatomic, readonly) NSString* currentTitle;
@property (nonatomic, readonly) UIImage* currentImage;
@property (nonatomic, readonly) UIImage* currentBackgroundImage;
@property (nonatomic, readonly, retain) UILabel* titleLabel;
@property (nonatomic, readonly, retain) UIImageView* imageView;

@end
