#import "UIKit/UIWindow.h"

#import "UIKit/UIApplication.h"
#import "UIKit/internal/Containers.h"

@implementation UIWindow

@synthesize rootViewController = _rootViewController;

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    [self setHidden:YES]; // until it is made visible
    return self;
}

- (void)dealloc {
    [_rootViewController release];
    [super dealloc];
}

- (void)setRootViewController:(UIViewController*)controller {
    UIViewController* old = [_rootViewController autorelease];
    _rootViewController = [controller retain];
    if ([self isHidden]) return;
    [old willChangeAppearance:NO animated:NO];
    [[old viewIfLoaded] removeFromSuperview];
    [old didChangeAppearance:NO animated:NO];
    [self showRoot];
}

- (void)makeKeyAndVisible {
    [[UIApplication sharedApplication] setKeyWindow:self];
    [self setHidden:NO];
    [self showRoot];
}

- (void)showRoot {
    if (_rootViewController == nil) return;
    [_rootViewController willChangeAppearance:YES animated:NO];
    [[_rootViewController view] setFrame:[self bounds]];
    [self insertSubview:[_rootViewController view] atIndex:0];
    [self layoutIfNeeded];
    [_rootViewController didChangeAppearance:YES animated:NO];
}

@end
