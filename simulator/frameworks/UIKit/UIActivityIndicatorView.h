// A turning wheel that says that something is going on.
#pragma once

#import "UIKit/UIView.h"

typedef NS_ENUM(NSInteger, UIActivityIndicatorViewStyle) {
    UIActivityIndicatorViewStyleWhiteLarge = 0,
    UIActivityIndicatorViewStyleWhite = 1,
    UIActivityIndicatorViewStyleGray = 2,
};

@interface UIActivityIndicatorView : UIView {
  @private
    UIActivityIndicatorViewStyle _style;
    UIColor* _color;
    BOOL _hidesWhenStopped;
    BOOL _animating;
}

// 37 points wide and high in the large style, 20 in the others.
- (instancetype)initWithActivityIndicatorStyle:(UIActivityIndicatorViewStyle)style;

@property (nonatomic) UIActivityIndicatorViewStyle activityIndicatorViewStyle;
@property (nonatomic, retain) UIColor* color;
// YES unless set: the view is hidden while it does not turn.
@property (nonatomic) BOOL hidesWhenStopped;
@property (nonatomic, readonly, getter=isAnimating) BOOL animating;
- (void)startAnimating;
- (void)stopAnimating;

@end
