#include "common/tabs.h"
#include "objc/replacement.h"
#include "photos/albumlist/hooks.h"
#include "photos/albumlist/state.h"
#include "settings/settings.h"

namespace rollkeeper::albumList {

bool showPeople(PUAlbumListViewController self, SEL command) {
    if (settings::enabled && !settings::showPeople) return false;
    return original<showPeople>(self, command);
}

bool showPlaces(PUAlbumListViewController self, SEL command) {
    if (settings::enabled && !settings::showPlaces) return false;
    return original<showPlaces>(self, command);
}

NSString titleForCollection(PUAlbumListViewController self, SEL command, PHCollection collection) {
    if (settings::enabled && !settings::layoutShowTitle) return ""_ns;
    return original<titleForCollection>(self, command, collection);
}

NSString subtitleForCollection(PUAlbumListViewController self, SEL command, PHCollection collection) {
    if (settings::enabled && !settings::layoutShowSubtitle) return ""_ns;
    return original<subtitleForCollection>(self, command, collection);
}

bool disallowsSearch(PUAlbumListViewController self, SEL command) {
    if (settings::removeSearch && settings::enabled) return true;
    return original<disallowsSearch>(self, command);
}

// With one tab left both answers are yes: the bar is hidden, and the list is laid out as if it were there.

bool alwaysHideTabBar(PUAlbumListViewController self, SEL command) {
    if (settings::enabled && hasOneTab()) return true;
    return original<alwaysHideTabBar>(self, command);
}

bool wantsTabBarVisible(PUAlbumListViewController self, SEL command) {
    if (settings::enabled && hasOneTab()) return true;
    return original<wantsTabBarVisible>(self, command);
}

NSIndexPath indexPathForFirstEditableAlbum(PUAlbumListViewController self, SEL command) {
    if (settings::enabled) return NSIndexPath::indexPathForRow(0, 0);
    return original<indexPathForFirstEditableAlbum>(self, command);
}

void viewWillTransition(PUAlbumListViewController self, SEL command, CGSize size, NSObject coordinator) {
    original<viewWillTransition>(self, command, size, coordinator);
    reloadContentViewAfter(0.2, self);
    reloadContentViewAfter(0.5, self);
}

} // namespace rollkeeper::albumList
