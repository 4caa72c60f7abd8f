#import "hosts/applications/settings/PreferencesAppController.h"

#include "hosts/applications/common/screen.h"

namespace {

// nil for an entry that opens no bundle's pane.
PSSpecifier* rowOfEntry(NSDictionary* entry) {
    NSString* bundle = [entry objectForKey:PSBundlePathKey];
    if (bundle == nil || ![[entry objectForKey:PSBundleIsControllerKey] boolValue]) return nil;
    NSString* path = [NSString stringWithFormat:@"/Library/PreferenceBundles/%@.bundle", bundle];
    if (![[NSFileManager defaultManager] fileExistsAtPath:path]) {
        NSLog(@"Settings: the bundle %@ is missing", path);
        return nil;
    }
    PSSpecifier* row = [PSSpecifier specifierWithDictionary:entry target:nil];
    [row setProperty:path forKey:PSLazilyLoadedBundleKey];
    if (NSString* icon = [entry objectForKey:@"icon"]) {
        NSString* file = [path stringByAppendingPathComponent:icon];
        [row setProperty:[[[UIImage alloc] initWithContentsOfFile:file] autorelease] forKey:PSIconImageKey];
    }
    return row;
}

NSArray* rowsOfInstalledTools() {
    NSString* folder = @"/Library/PreferenceLoader/Preferences";
    NSMutableArray* rows = [NSMutableArray array];
    for (NSString* name in [[NSFileManager defaultManager] subpathsAtPath:folder]) {
        NSDictionary* file =
            [NSDictionary dictionaryWithContentsOfFile:[folder stringByAppendingPathComponent:name]];
        if (PSSpecifier* row = rowOfEntry([file objectForKey:@"entry"])) [rows addObject:row];
    }
    return rows;
}

} // namespace

@implementation PSUIPrefsListController

- (NSArray*)specifiers {
    if (_specifiers != nil) return _specifiers;
    PSSpecifier* wallpaper = [PSSpecifier specifierWithDictionary:@{
        PSTableCellClassKey : @"PSButtonCell",
        PSTitleKey : @"Wallpaper",
        PSActionKey : @"openWallpaperPicker"
    }
                                                           target:self];
    NSArray* own = @[ wallpaper, [PSSpecifier emptyGroupSpecifier] ];
    _specifiers = [[own arrayByAddingObjectsFromArray:rowsOfInstalledTools()] retain];
    return _specifiers;
}

- (AlbumPickerViewController*)openWallpaperPicker {
    [[self navigationController] popToRootViewControllerAnimated:NO];
    AlbumPickerViewController* picker = [[[AlbumPickerViewController alloc] init] autorelease];
    [picker setTitle:@"Choose"];
    [[self navigationController] pushViewController:picker animated:YES];
    return picker;
}

@end

@implementation PreferencesAppController

@synthesize rootController = _rootController, rootListController = _rootListController;

- (void)dealloc {
    [_rootController release];
    [_rootListController release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    _rootListController = [[PSUIPrefsListController alloc] init];
    [_rootListController setTitle:@"Settings"];
    _rootController = [[PSRootController alloc] initWithRootViewController:_rootListController];
    simulator::showRootViewController(_rootController);
}

@end
