// Views that show something and take no part in what the user does: labels, pictures, spinners, blur.
#pragma once

#import "UIKit/UIFont.h"
#import "UIKit/UIView.h"

@class UIImage;

typedef NS_ENUM(NSInteger, UIBaselineAdjustment) { UIBaselineAdjustmentAlignBaselines = 0 };

typedef NS_ENUM(NSInteger, UIActivityIndicatorViewStyle) { UIActivityIndicatorViewStyleWhite = 1 };

typedef NS_ENUM(NSInteger, UIBlurEffectStyle) { UIBlurEffectStyleDark = 2 };

// Takes no touches unless told to.
@interface UILabel : UIView {
  @private
    NSString* _text;
    UIFont* _font;
    UIColor* _textColor;
    NSTextAlignment _textAlignment;
    NSInteger _numberOfLines;
    UIBaselineAdjustment _baselineAdjustment;
    CGFloat _minimumScaleFactor;
    BOOL _adjustsFontSizeToFitWidth;
    BOOL _adjustsLetterSpacingToFitWidth;
}

@property (nonatomic, copy) NSString* text;
// The system font of 17 points unless set.
@property (nonatomic, retain) UIFont* font;
// Black unless set.
@property (nonatomic, retain) UIColor* textColor;
@property (nonatomic) NSTextAlignment textAlignment;
// 0 means as many as fit.
@property (nonatomic) NSInteger numberOfLines;
@property (nonatomic) UIBaselineAdjustment baselineAdjustment;
@property (nonatomic) BOOL adjustsFontSizeToFitWidth;
@property (nonatomic) BOOL adjustsLetterSpacingToFitWidth;
@property (nonatomic) CGFloat minimumScaleFactor;
- (CGSize)sizeThatFits:(CGSize)size;

@end

// Takes no touches unless told to.
@interface UIImageView : UIView {
  @private
    UIImage* _image;
}

// Takes the size of the image; an empty view for nil.
- (instancetype)initWithImage:(UIImage*)image;

@property (nonatomic, retain) UIImage* image;

@end

// A turning wheel that says that something is going on.
@interface UIActivityIndicatorView : UIView {
  @private
    UIActivityIndicatorViewStyle _activityIndicatorViewStyle;
    BOOL _hidesWhenStopped;
    BOOL _animating;
}

// 20 points wide and high.
- (instancetype)initWithActivityIndicatorStyle:(UIActivityIndicatorViewStyle)style;

@property (nonatomic, readonly) UIActivityIndicatorViewStyle activityIndicatorViewStyle;
// YES unless set: the view is hidden while it does not turn.
@property (nonatomic) BOOL hidesWhenStopped;
@property (nonatomic, readonly, getter=isAnimating) BOOL animating;
- (void)startAnimating;
- (void)stopAnimating;

@end

@interface UIVisualEffect : NSObject
@end

@interface UIBlurEffect : UIVisualEffect {
  @private
    UIBlurEffectStyle _style;
}

+ (UIBlurEffect*)effectWithStyle:(UIBlurEffectStyle)style;

@property (nonatomic, readonly) UIBlurEffectStyle style;

@end

// Blurs what lies behind it.
@interface UIVisualEffectView : UIView {
  @private
    UIVisualEffect* _effect;
}

- (instancetype)initWithEffect:(UIVisualEffect*)effect;

@property (nonatomic, readonly) UIVisualEffect* effect;

@end
