#pragma once

#import "UIKit/UIKit.h"

@interface FBSystemApp : UIApplication
@end

/// The application that owns the home screen; every other one is started by it.
@interface SpringBoard : FBSystemApp {
    UIWindow* _window;
}
- (void)applicationDidFinishLaunching:(UIApplication*)application;
@end
