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
    NSArray* _displayedContentModes;
}
/// The content modes (NSNumber) that get no tab; none unless set.
@property (nonatomic, copy) NSArray* excludedContentModes;
/// Makes the tabs anew as the excluded content modes say now.
- (void)updateDisplayedContentModes;
/// The content modes that have a tab, in their order.
- (NSArray*)displayedContentModes;
- (int)selectedContentMode;
- (void)setSelectedContentMode:(int)mode;
/// nil when the mode has no tab.
- (UINavigationController*)navigationControllerForContentMode:(int)mode;
- (UINavigationController*)selectedNavigationController;
@end
