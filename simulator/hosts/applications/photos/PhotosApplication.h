#pragma once

#import "PhotosUI/PUTabbedLibraryViewController.h"
#import "UIKit/UIKit.h"

/// What Photos shares with the older applications that show photos.
@interface PLPhotosApplication : UIApplication
- (void)applicationDidEnterBackground:(UIApplication*)application;
@end

/// The application object of Photos: the tabbed library in a window.
@interface PhotosApplication : PLPhotosApplication {
    PUTabbedLibraryViewController* _tabbedLibraryViewController;
    UIWindow* _window;
}
- (UIViewController*)rootViewController;
- (PUTabbedLibraryViewController*)_tabbedLibraryViewController;
@end
