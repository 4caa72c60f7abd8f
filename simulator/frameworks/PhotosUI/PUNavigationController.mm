#import "PhotosUI/PUNavigationController.h"

@implementation UIViewController (PUTabBar)

- (BOOL)pu_wantsTabBarVisible {
    return YES;
}

- (void)pu_updateTabBarVisibility {
    UITabBarController* tabs = [self tabBarController];
    [[tabs tabBar] setHidden:![self pu_wantsTabBarVisible]];
    [[tabs viewIfLoaded] setNeedsLayout];
}

@end

@implementation PUNavigationController

@synthesize _currentToolbarViewController = _currentToolbarViewController;

- (void)dealloc {
    [_currentToolbarViewController release];
    [super dealloc];
}

- (void)_topViewControllerDidChange {
    UIViewController* top = [self topViewController];
    [self _setCurrentToolbarViewController:top];
    [[self navigationBar] setNeedsLayout]; // its buttons are the new screen's
    [top pu_updateTabBarVisibility];
}

- (void)pushViewController:(UIViewController*)controller animated:(BOOL)animated {
    [super pushViewController:controller animated:animated];
    [self _topViewControllerDidChange];
}

- (UIViewController*)popViewControllerAnimated:(BOOL)animated {
    UIViewController* popped = [super popViewControllerAnimated:animated];
    [self _topViewControllerDidChange];
    return popped;
}

- (NSArray*)popToRootViewControllerAnimated:(BOOL)animated {
    NSArray* popped = [super popToRootViewControllerAnimated:animated];
    [self _topViewControllerDidChange];
    return popped;
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self _topViewControllerDidChange];
}

@end
