#include "photos/albumsscreen/locked_titles.h"

#include "common/smart_albums.h"
#include "state/locked_albums.h"

namespace rollkeeper::albumsScreen {

namespace {

// Nil for what is no smart album, or one without a switch.
NSString labelOf(PHCollection collection) {
    if (!collection.respondsTo<"assetCollectionSubtype">()) return NSString();
    const auto album = cast<PHAssetCollection>(collection);
    if (album.assetCollectionType() != PHAssetCollectionType::smartAlbum) return NSString();
    const SmartAlbumSwitch* found = switchOf(album.assetCollectionSubtype());
    return found ? found->label() : NSString();
}

} // namespace

NSString ifLocked(NSString title) {
    return title && lockedAlbums::reread()->containsObject(title) ? title : NSString();
}

NSString lockedTitleOf(PHCollection collection) {
    const NSString title = collection.localizedTitle();
    if (const NSString locked = ifLocked(title)) return locked;
    const NSString label = labelOf(collection);
    if (!ifLocked(label)) return NSString();
    return title ? title : label;
}

} // namespace rollkeeper::albumsScreen
