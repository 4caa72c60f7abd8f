#import "PhotosUI/PUNavigationController.h"

@implementation UIViewController (PUTabBar)

- (BOOL)pu_wantsTabBarVisible {
    return YES;
}

@end
