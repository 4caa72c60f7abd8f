#import "hosts/applications/settings/PreferencesAppController.h"

#include "hosts/applications/common/launch.h"

@implementation WallpaperAlbumPickerViewController
@end

@implementation PSUIPrefsRootController
@end

@implementation PreferencesAppController

- (void)dealloc {
    [_controller release];
    [_window release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    UIViewController* list = [[[UIViewController alloc] init] autorelease];
    [list setTitle:@"Settings"];
    _controller = [[PSUIPrefsRootController alloc] initWithRootViewController:list];
    _window = simulator::showRootViewController(_controller);
}

- (id)rootController {
    return _controller;
}

- (WallpaperAlbumPickerViewController*)openWallpaperPicker {
    [_controller popToRootViewControllerAnimated:NO];
    UIViewController* wallpaper = [[[UIViewController alloc] init] autorelease];
    [wallpaper setTitle:@"Wallpaper"];
    [_controller pushViewController:wallpaper animated:NO];
    WallpaperAlbumPickerViewController* picker =
        [[[WallpaperAlbumPickerViewController alloc] init] autorelease];
    [picker setTitle:@"Choose"];
    [_controller pushViewController:picker animated:YES];
    return picker;
}

@end
