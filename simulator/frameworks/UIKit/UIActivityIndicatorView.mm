#import "UIKit/UIActivityIndicatorView.h"

#import "UIKit/UIColor.h"
#import "UIKit/internal/MainThread.h"

using simulator::mainThreadOnly;

namespace {

CGFloat sideOf(UIActivityIndicatorViewStyle style) {
    return style == UIActivityIndicatorViewStyleWhiteLarge ? 37 : 20;
}

} // namespace

@implementation UIActivityIndicatorView

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _style = UIActivityIndicatorViewStyleWhite;
    _hidesWhenStopped = YES;
    [self setHidden:YES];
    return self;
}

- (instancetype)initWithActivityIndicatorStyle:(UIActivityIndicatorViewStyle)style {
    self = [self initWithFrame:CGRectMake(0, 0, sideOf(style), sideOf(style))];
    _style = style;
    return self;
}

- (void)dealloc {
    [_color release];
    [super dealloc];
}

- (UIActivityIndicatorViewStyle)activityIndicatorViewStyle {
    mainThreadOnly(self, _cmd);
    return _style;
}

- (void)setActivityIndicatorViewStyle:(UIActivityIndicatorViewStyle)style {
    mainThreadOnly(self, _cmd);
    _style = style;
}

- (UIColor*)color {
    mainThreadOnly(self, _cmd);
    return _color;
}

- (void)setColor:(UIColor*)color {
    mainThreadOnly(self, _cmd);
    [color retain];
    [_color release];
    _color = color;
}

- (BOOL)hidesWhenStopped {
    mainThreadOnly(self, _cmd);
    return _hidesWhenStopped;
}

- (void)setHidesWhenStopped:(BOOL)hides {
    mainThreadOnly(self, _cmd);
    _hidesWhenStopped = hides ? YES : NO;
    [self setHidden:_hidesWhenStopped && !_animating ? YES : NO];
}

- (BOOL)isAnimating {
    mainThreadOnly(self, _cmd);
    return _animating;
}

- (void)startAnimating {
    mainThreadOnly(self, _cmd);
    _animating = YES;
    [self setHidden:NO];
}

- (void)stopAnimating {
    mainThreadOnly(self, _cmd);
    _animating = NO;
    if (_hidesWhenStopped) [self setHidden:YES];
}

- (CGSize)sizeThatFits:(CGSize)size {
    return {sideOf(_style), sideOf(_style)};
}

@end
