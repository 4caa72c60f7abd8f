// A view that blurs what lies behind it.
#pragma once

#import "UIKit/UIView.h"

typedef NS_ENUM(NSInteger, UIBlurEffectStyle) {
    UIBlurEffectStyleExtraLight = 0,
    UIBlurEffectStyleLight = 1,
    UIBlurEffectStyleDark = 2,
};

@interface UIVisualEffect : NSObject <NSCopying>
@end

@interface UIBlurEffect : UIVisualEffect {
  @private
    UIBlurEffectStyle _style;
}

+ (UIBlurEffect*)effectWithStyle:(UIBlurEffectStyle)style;

@property (nonatomic, readonly) UIBlurEffectStyle style;

@end

@interface UIVisualEffectView : UIView {
  @private
    UIVisualEffect* _effect;
    UIView* _contentView;
}

- (instancetype)initWithEffect:(UIVisualEffect*)effect;

@property (nonatomic, copy) UIVisualEffect* effect;
// Subviews belong in here; always as large as the view.
@property (nonatomic, readonly, retain) UIView* contentView;

@end
