#include "common/album_cell.h"
#include "objc/replacement.h"
#include "photos/albumactions/hooks.h"
#include "settings/settings.h"

#include <iterator>

namespace rollkeeper::photosFrame {

namespace {

struct Tab {
    const Setting<bool>& shown;
    int contentMode; // Photos' own number
};

constexpr int albumsContentMode = 2;

constexpr Tab tabs[] = {
    {settings::showTabMoments, 0},
    {settings::showTabMemories, 9},
    {settings::showTabShared, 1},
    {settings::showTabAlbums, albumsContentMode},
};

bool hasOneItem(UITabBar bar) { return bar.items().count() == 1; }

} // namespace

NSArray excludedContentModes(PUTabbedLibraryViewController self, SEL command) {
    if (!settings::enabled) return original<excludedContentModes>(self, command);

    Owner<NSMutableArray> excluded = make<NSMutableArray>();
    for (const Tab& tab : tabs)
        if (!tab.shown) excluded->addObject(NSNumber::numberWithInt(tab.contentMode));
    // One tab has to stay.
    if (excluded->count() == std::size(tabs))
        excluded->removeObject(NSNumber::numberWithInt(albumsContentMode));
    return autoreleased(std::move(excluded));
}

// A bar with one item is never shown, whatever the settings say.

void layoutTabBar(UITabBar self, SEL command) {
    original<layoutTabBar>(self, command);
    if (hasOneItem(self)) self.setHidden(true);
}

bool isTabBarHidden(UITabBar self, SEL command) {
    if (hasOneItem(self)) return true;
    return original<isTabBarHidden>(self, command);
}

// The overlay with the round corners covers an album's thumbnail, and so tells its size.
void layoutCoverOverlay(UIView self, SEL command) {
    original<layoutCoverOverlay>(self, command);
    const CGFloat width = self.frame().size.width;
    if (width > 100.0) setAlbumCellSide(width + 1.0);
}

} // namespace rollkeeper::photosFrame
