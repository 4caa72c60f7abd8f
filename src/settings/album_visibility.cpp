#include "settings/album_visibility.h"

#include "objc/global.h"

namespace rollkeeper::settings {

namespace {

// Readers on other threads keep what they hold: a change publishes a new dictionary and leaves the old one
// alone.
constinit PublishedGlobal<NSDictionary> albumVisibility;

NSString albumKeyPrefix() { return "albumName"_ns; }

void copyEntries(NSDictionary from, NSMutableDictionary to) {
    for (NSString key : each<NSString>(from.allKeys()))
        to.setObject(from.objectForKey(key), key);
}

} // namespace

NSString albumVisibilityKey(NSString title) {
    return title ? albumKeyPrefix().stringByAppendingString(title) : NSString();
}

bool isAlbumSwitchedOff(NSString title) {
    if (!title) return false;
    const auto entry = cast<NSNumber>(albumVisibility.get().objectForKey(albumVisibilityKey(title)));
    return entry && !entry.boolValue();
}

bool isAlbumKey(NSObject key) { return ifKindOf<NSString>(key).contains(albumKeyPrefix()); }

void mergeAlbumVisibility(NSDictionary entries) {
    const NSDictionary known = albumVisibility.get();
    Owner<NSMutableDictionary> merged = make<NSMutableDictionary>();
    copyEntries(known, merged);
    copyEntries(entries, merged);
    if (known && merged->isEqual(known)) return;
    albumVisibility.publish(share(NSDictionary(merged.get())));
}

} // namespace rollkeeper::settings
