#pragma once

#import "Preferences/Preferences.h"
#import "hosts/applications/common/AlbumPickerViewController.h"

/// The albums that a wallpaper may be chosen from.
@interface WallpaperAlbumPickerViewController : AlbumPickerViewController
@end

/// The list of Settings: the system's own rows, then those of installed tools.
@interface PSUIPrefsListController : PSListController
/// Opens the list of albums for a new wallpaper.
- (WallpaperAlbumPickerViewController*)openWallpaperPicker;
@end

/// The navigation of Settings.
@interface PSUIPrefsRootController : PSRootController
@end

/// The application object of Settings.
@interface PreferencesAppController : UIApplication {
    PSUIPrefsRootController* _controller;
    PSUIPrefsListController* _list;
    UIWindow* _window;
}
- (id)rootController;
- (PSUIPrefsListController*)rootListController;
@end
