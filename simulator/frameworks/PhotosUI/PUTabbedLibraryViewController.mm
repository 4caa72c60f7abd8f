#import "PhotosUI/PUTabbedLibraryViewController.h"

#import "PhotosUI/PUNavigationController.h"

#include "UIKit/model/Outlines.h"
#include "device/releases.h"

#include <objc/runtime.h>

namespace {

// The tabs in their order. A tab appeared with a release, and so did the class that fills it; where the class
// is missing the tab stays empty.
constexpr struct Tab {
    PUContentMode mode;
    simulator::Release since;
    const char* title;
    const char* symbol;
    const char* controllerClass;
} tabs[] = {
    {PUContentModePhotos, simulator::Release::ios7_1, "Photos", simulator::outline::photos,
     "PUZoomableGridViewController"},
    {PUContentModeMemories, simulator::Release::ios10_1, "Memories", simulator::outline::memories, nullptr},
    {PUContentModeShared, simulator::Release::ios7_1, "Shared", simulator::outline::shared, nullptr},
    {PUContentModeAlbums, simulator::Release::ios7_1, "Albums", simulator::outline::albums,
     "PUAlbumListViewController"},
};

const char* controllerClassOf(const Tab& tab) {
    const simulator::Release release = simulator::currentRelease();
    const bool hasAlbumsScreen =
        release >= simulator::Release::ios12_0 && release != simulator::Release::complete;
    const bool isAlbums = tab.mode == PUContentModeAlbums;
    return isAlbums && hasAlbumsScreen ? "PUAlbumsGadgetViewController" : tab.controllerClass;
}

UIViewController* makeRootController(const char* className, NSString* title) {
    const bool hasLibrary = objc_getClass("PHPhotoLibrary") != Nil;
    Class ownClass = className != nullptr && hasLibrary ? objc_getClass(className) : Nil;
    Class controllerClass = ownClass != Nil ? ownClass : [UIViewController class];
    UIViewController* controller = [[[controllerClass alloc] init] autorelease];
    if ([[controller title] length] == 0) [controller setTitle:title];
    return controller;
}

} // namespace

@implementation PUTabbedLibraryViewController

@synthesize excludedContentModes = _excludedContentModes;

- (void)dealloc {
    [_excludedContentModes release];
    [super dealloc];
}

- (void)setExcludedContentModes:(NSArray*)modes {
    [_excludedContentModes autorelease];
    _excludedContentModes = [modes copy];
    [self _makeTabs];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    [self _makeTabs];
}

- (void)_makeTabs {
    NSArray* excluded = [self excludedContentModes];
    NSMutableArray* controllers = [NSMutableArray array];
    for (const Tab& tab : tabs) {
        if (tab.since > simulator::currentRelease()) continue;
        if ([excluded containsObject:[NSNumber numberWithInt:tab.mode]]) continue;
        NSString* title = [NSString stringWithUTF8String:tab.title];
        PUNavigationController* navigation = [[[PUNavigationController alloc]
            initWithRootViewController:makeRootController(controllerClassOf(tab), title)] autorelease];
        [navigation setTabBarItem:[[[UITabBarItem alloc] initWithTitle:title
                                                                 image:[UIImage imageWithOutline:tab.symbol]
                                                                   tag:tab.mode] autorelease]];
        [controllers addObject:navigation];
    }
    [self setViewControllers:controllers];
}

- (NSArray*)displayedContentModes {
    NSMutableArray* modes = [NSMutableArray array];
    for (UIViewController* controller in [self viewControllers])
        [modes addObject:[NSNumber numberWithInteger:[[controller tabBarItem] tag]]];
    return modes;
}

- (UINavigationController*)navigationControllerForContentMode:(int)mode {
    for (UINavigationController* controller in [self viewControllers])
        if ([[controller tabBarItem] tag] == mode) return controller;
    return nil;
}

- (void)setSelectedContentMode:(int)mode {
    UINavigationController* controller = [self navigationControllerForContentMode:mode];
    if (controller != nil) [self setSelectedViewController:controller];
}

- (UINavigationController*)selectedNavigationController {
    return static_cast<UINavigationController*>([self selectedViewController]);
}

@end
