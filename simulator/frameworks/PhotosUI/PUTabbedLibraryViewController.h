#pragma once

#import "UIKit/UIKit.h"

/// What a tab of the photo library shows; also its number in lists of content modes.
typedef NS_ENUM(int, PUContentMode) {
    PUContentModePhotos = 0,
    PUContentModeShared = 1,
    PUContentModeAlbums = 2,
    PUContentModeMemories = 9,
};

/// The photo library with its tabs.
@interface PUTabbedLibraryViewController : UITabBarController {
    NSArray* _excludedContentModes;
}
/// The content modes (NSNumber) that get no tab; nil unless set.
@property (nonatomic, copy) NSArray* excludedContentModes;
/// The content modes that have a tab, in their order.
- (NSArray*)displayedContentModes;
- (void)setSelectedContentMode:(int)mode;
/// nil when the mode has no tab.
- (UINavigationController*)navigationControllerForContentMode:(int)mode;
- (UINavigationController*)selectedNavigationController;
@end
