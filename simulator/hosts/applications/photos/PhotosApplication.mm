#import "hosts/applications/photos/PhotosApplication.h"

#include "hosts/applications/common/launch.h"

@implementation PLPhotosApplication

// Nothing that Photos has open needs to be closed.
- (void)applicationDidEnterBackground:(UIApplication*)application {
}

@end

@implementation PhotosApplication

- (void)dealloc {
    [_tabbedLibraryViewController release];
    [_window release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    _tabbedLibraryViewController = [[PUTabbedLibraryViewController alloc] init];
    _window = simulator::showRootViewController(_tabbedLibraryViewController);
    [_tabbedLibraryViewController setSelectedContentMode:PUContentModeAlbums];
}

- (UIViewController*)rootViewController {
    return _tabbedLibraryViewController;
}

- (PUTabbedLibraryViewController*)_tabbedLibraryViewController {
    return _tabbedLibraryViewController;
}

@end
