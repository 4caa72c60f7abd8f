#pragma once

#import "Preferences/Preferences.h"
#import "hosts/applications/common/AlbumPickerViewController.h"

/// The list of Settings: the system's own row, then those of installed tools, as the entry loader of
/// jailbroken devices makes them from /Library/PreferenceLoader/Preferences. A row whose bundle is missing is
/// left out.
@interface PSUIPrefsListController : PSListController
/// Opens the list of albums for a new wallpaper.
- (AlbumPickerViewController*)openWallpaperPicker;
@end

/// The application object of Settings.
@interface PreferencesAppController : UIApplication {
    PSRootController* _rootController;
    PSUIPrefsListController* _rootListController;
}
@property (nonatomic, readonly) PSRootController* rootController;
@property (nonatomic, readonly) PSUIPrefsListController* rootListController;
@end
