#pragma once

#import "Preferences/Preferences.h"
#import "hosts/applications/common/AlbumPickerViewController.h"

/// The albums that a wallpaper may be chosen from.
@interface WallpaperAlbumPickerViewController : AlbumPickerViewController
@end

/// The navigation of Settings.
@interface PSUIPrefsRootController : PSRootController
@end

/// The application object of Settings.
@interface PreferencesAppController : UIApplication {
    PSUIPrefsRootController* _controller;
    UIWindow* _window;
}
- (id)rootController;
/// Opens the list of albums for a new wallpaper.
- (WallpaperAlbumPickerViewController*)openWallpaperPicker;
@end
