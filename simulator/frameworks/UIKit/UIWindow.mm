#import "UIKit/UIWindow.h"

#import "UIKit/UIApplication.h"
#import "UIKit/UIViewController.h"
#import "UIKit/internal/ApplicationWindows.h"
#import "UIKit/internal/ControllerState.h"
#import "UIKit/internal/MainThread.h"

using simulator::mainThreadOnly;

@implementation UIWindow

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    [self setHidden:YES]; // until it is made visible
    return self;
}

- (void)dealloc {
    [_rootViewController release];
    [super dealloc];
}

- (UIViewController*)rootViewController {
    mainThreadOnly(self, _cmd);
    return _rootViewController;
}

- (void)setRootViewController:(UIViewController*)controller {
    mainThreadOnly(self, _cmd);
    if (_rootViewController == controller) return;
    const simulator::Retained<UIViewController*> old =
        simulator::Retained<UIViewController*>::adopted(_rootViewController);
    _rootViewController = [controller retain];
    if (![self isHidden]) {
        simulator::willDisappear(old.get(), false);
        [[old.get() viewIfLoaded] removeFromSuperview];
        simulator::didDisappear(old.get(), false);
        [self showRoot];
    }
}

- (BOOL)isKeyWindow {
    return [[UIApplication sharedApplication] keyWindow] == self ? YES : NO;
}

- (void)makeKeyWindow {
    mainThreadOnly(self, _cmd);
    [[UIApplication sharedApplication] makeKeyWindow:self];
}

- (void)makeKeyAndVisible {
    mainThreadOnly(self, _cmd);
    [[UIApplication sharedApplication] addWindow:self];
    [self makeKeyWindow];
    if (![self isHidden]) return;
    [self setHidden:NO];
    [self showRoot];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    if ([[_rootViewController viewIfLoaded] superview] == self)
        [[_rootViewController view] setFrame:[self bounds]];
}

- (void)showRoot {
    if (!_rootViewController) return;
    simulator::willAppear(_rootViewController, false);
    [[_rootViewController view] setFrame:[self bounds]];
    [self insertSubview:[_rootViewController view] atIndex:0];
    [self layoutIfNeeded];
    simulator::didAppear(_rootViewController, false);
}

@end
