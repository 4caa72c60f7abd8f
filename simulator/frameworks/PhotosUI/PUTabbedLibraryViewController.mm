#import "PhotosUI/PUTabbedLibraryViewController.h"

#import "PhotosUI/PUAlbumListViewController.h"
#import "PhotosUI/PUNavigationController.h"
#import "PhotosUI/PUPhotosGrid.h"

#include "device/releases.h"

#include <objc/runtime.h>

namespace {

// The tabs in their order. A tab appeared with a release, and so did the class that fills it; where the class
// is missing the tab stays empty.
constexpr struct {
    PUContentMode mode;
    simulator::Release since;
    const char* title;
    const char* controllerClass;
} tabs[] = {
    {PUContentModePhotos, simulator::Release::ios7_1, "Photos", "PUZoomableGridViewController"},
    {PUContentModeMemories, simulator::Release::ios10_1, "Memories", nullptr},
    {PUContentModeShared, simulator::Release::ios7_1, "Shared", nullptr},
    {PUContentModeAlbums, simulator::Release::ios7_1, "Albums", "PUAlbumListViewController"},
};

UIViewController* makeRootController(const char* className, NSString* title) {
    BOOL hasLibrary = objc_getClass("PHPhotoLibrary") != nil;
    Class controllerClass = className && hasLibrary ? objc_getClass(className) : nil;
    UIViewController* controller =
        [[[controllerClass ? controllerClass : [UIViewController class] alloc] init] autorelease];
    if ([[controller title] length] == 0) [controller setTitle:title];
    return controller;
}

} // namespace

@implementation PUTabbedLibraryViewController

@synthesize excludedContentModes = _excludedContentModes;

- (void)dealloc {
    [_excludedContentModes release];
    [_displayedContentModes release];
    [super dealloc];
}

- (void)setExcludedContentModes:(NSArray*)modes {
    if (modes != _excludedContentModes) {
        [_excludedContentModes release];
        _excludedContentModes = [modes copy];
    }
    if ([self isViewLoaded]) [self updateDisplayedContentModes];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    [self updateDisplayedContentModes];
}

- (void)updateDisplayedContentModes {
    NSArray* excluded = [self excludedContentModes];
    NSMutableArray* modes = [NSMutableArray array];
    NSMutableArray* controllers = [NSMutableArray array];
    for (auto tab : tabs) {
        NSNumber* mode = [NSNumber numberWithInt:tab.mode];
        if (tab.since > simulator::currentRelease() || [excluded containsObject:mode]) continue;
        NSString* title = [NSString stringWithUTF8String:tab.title];
        PUNavigationController* navigation = [[[PUNavigationController alloc]
            initWithRootViewController:makeRootController(tab.controllerClass, title)] autorelease];
        UITabBarItem* item = [[[UITabBarItem alloc] initWithTitle:title image:nil tag:tab.mode] autorelease];
        [navigation setTabBarItem:item];
        [modes addObject:mode];
        [controllers addObject:navigation];
    }
    [_displayedContentModes release];
    _displayedContentModes = [modes copy];
    [self setViewControllers:controllers];
}

- (NSArray*)displayedContentModes {
    return _displayedContentModes;
}

- (int)selectedContentMode {
    NSUInteger index = [self selectedIndex];
    return index < [_displayedContentModes count] ? [[_displayedContentModes objectAtIndex:index] intValue]
                                                  : -1;
}

- (void)setSelectedContentMode:(int)mode {
    NSUInteger index = [_displayedContentModes indexOfObject:[NSNumber numberWithInt:mode]];
    if (index != NSNotFound) [self setSelectedIndex:index];
}

- (UINavigationController*)navigationControllerForContentMode:(int)mode {
    NSUInteger index = [_displayedContentModes indexOfObject:[NSNumber numberWithInt:mode]];
    return index == NSNotFound ? nil : [[self viewControllers] objectAtIndex:index];
}

- (UINavigationController*)selectedNavigationController {
    return static_cast<UINavigationController*>([self selectedViewController]);
}

@end
