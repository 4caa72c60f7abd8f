#pragma once

#import "CameraUI/CameraUI.h"

/// The application object of the Camera.
@interface CAMCameraApplication : UIApplication {
    CAMViewfinderViewController* _viewfinderViewController;
    UIWindow* _window;
}
- (CAMViewfinderViewController*)viewfinderViewController;
@end

/// A button that some third-party camera tools put into the bottom bar.
@interface CustomDrawButton : UIButton
@end
