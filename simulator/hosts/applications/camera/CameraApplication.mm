#import "hosts/applications/camera/CameraApplication.h"

#include "hosts/applications/common/launch.h"

@implementation CAMCameraApplication

- (void)dealloc {
    [_viewfinderViewController release];
    [_window release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    _viewfinderViewController = [[CAMViewfinderViewController alloc] init];
    _window = simulator::showRootViewController(_viewfinderViewController);
}

- (CAMViewfinderViewController*)viewfinderViewController {
    return _viewfinderViewController;
}

@end

@implementation CustomDrawButton
@end
