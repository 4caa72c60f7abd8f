#import "hosts/applications/settings/PreferencesAppController.h"

#import "hosts/applications/settings/PreferenceLoader.h"

#include "hosts/applications/common/launch.h"

@implementation WallpaperAlbumPickerViewController
@end

@implementation PSUIPrefsRootController
@end

@implementation PSUIPrefsListController

- (NSArray*)specifiers {
    if (_specifiers == nil) {
        PSSpecifier* wallpaper = [PSSpecifier preferenceSpecifierNamed:@"Wallpaper"
                                                                target:self
                                                                   set:nullptr
                                                                   get:nullptr
                                                                detail:Nil
                                                                  cell:PSButtonCell
                                                                  edit:Nil];
        [wallpaper setButtonAction:@selector(openWallpaperPicker)];
        NSArray* own = @[ [PSSpecifier emptyGroupSpecifier], wallpaper, [PSSpecifier emptyGroupSpecifier] ];
        _specifiers = [[own arrayByAddingObjectsFromArray:PLLoadEntries(self)] retain];
    }
    return _specifiers;
}

- (WallpaperAlbumPickerViewController*)openWallpaperPicker {
    [[self navigationController] popToRootViewControllerAnimated:NO];
    UIViewController* wallpaper = [[[UIViewController alloc] init] autorelease];
    [wallpaper setTitle:@"Wallpaper"];
    [[self navigationController] pushViewController:wallpaper animated:NO];
    WallpaperAlbumPickerViewController* picker =
        [[[WallpaperAlbumPickerViewController alloc] init] autorelease];
    [picker setTitle:@"Choose"];
    [[self navigationController] pushViewController:picker animated:YES];
    return picker;
}

@end

@implementation PreferencesAppController

- (void)dealloc {
    [_controller release];
    [_list release];
    [_window release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    _list = [[PSUIPrefsListController alloc] init];
    [_list setTitle:@"Settings"];
    _controller = [[PSUIPrefsRootController alloc] initWithRootViewController:_list];
    [_list setRootController:_controller];
    _window = simulator::showRootViewController(_controller);
}

- (id)rootController {
    return _controller;
}

- (PSUIPrefsListController*)rootListController {
    return _list;
}

@end
