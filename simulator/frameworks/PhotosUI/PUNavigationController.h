#pragma once

#import "UIKit/UIKit.h"

@interface UIViewController (PUTabBar)
/// Whether the tab bar shows while this controller is on top; YES unless a class says otherwise.
- (BOOL)pu_wantsTabBarVisible;
/// Shows or hides the tab bar as this controller wants it; its room goes to the screen above.
- (void)pu_updateTabBarVisibility;
@end

/// The navigation controller of every tab of the photo library: it knows which of its controllers owns the
/// toolbar and shows or hides the tab bar as the controller on top wants it.
@interface PUNavigationController : UINavigationController {
    UIViewController* _currentToolbarViewController;
}
@property (nonatomic, retain, setter=_setCurrentToolbarViewController:)
    UIViewController* _currentToolbarViewController;
@end
