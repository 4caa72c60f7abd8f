#include "common/albums.h"
#include "common/smart_albums.h"
#include "filtering/hooks.h"
#include "objc/replacement.h"
#include "settings/settings.h"
#include "state/locked_albums.h"

namespace rollkeeper::outsidePickers {

namespace {

bool isLocked(NSString title) {
    const Owner<NSMutableArray> titles = lockedAlbums::reread();
    return title && titles->containsObject(title);
}

NSString titleOf(NSObject album) {
    return album.respondsTo<"title">() ? cast<PHAssetCollection>(album).title() : NSString();
}

// Methods of Messenger's own cells.
struct MessengerCell {
    static constexpr FixedString className = "MessengerCell";
    static void clearAsset(NSObject cell) {
        if (cell.respondsTo<"setAsset:">()) send<MessengerCell, "setAsset:", void>(cell, NSObject());
    }
};

// Locks and the process are not looked at here, and hidden smart albums pass.
bool passesSwitches(NSObject collection) {
    if (!collection.respondsTo<"assetCollectionSubtype">()) return true;
    const SmartAlbumSwitch* smartAlbum =
        switchOf(cast<PHAssetCollection>(collection).assetCollectionSubtype());
    return !smartAlbum || smartAlbum->shown;
}

} // namespace

// Hides locked albums whatever "hideLockedFromApps" says, and asks a second time for the album that it
// returns.
NSObject messengerAlbumAtIndex(NSObject self, SEL command, NSInteger index) {
    if (isLocked(titleOf(original<messengerAlbumAtIndex>(self, command, index)))) return NSObject();
    return original<messengerAlbumAtIndex>(self, command, index);
}

// No album at all, locked or not, while locked albums are hidden: kept on purpose.
NSObject messengerAlbumAtIndexPath(NSObject self, SEL command, NSIndexPath path) {
    if (!settings::enabled || !settings::hideLockedFromApps)
        return original<messengerAlbumAtIndexPath>(self, command, path);
    lockedAlbums::reread();
    return NSObject();
}

// The cell that comes back is a second one; clearing the first lets the shared preview go.
UITableViewCell messengerCellForRow(NSObject self, SEL command, UIView table, NSIndexPath path) {
    const UITableViewCell cell = original<messengerCellForRow>(self, command, table, path);
    if (isLocked(cell.textLabel().text())) MessengerCell::clearAsset(cell);
    return original<messengerCellForRow>(self, command, table, path);
}

// The switches act here only while locked albums are hidden.
PHFetchResult whatsAppFetchAssetCollections(NSObject self, SEL command, PHAssetCollectionType type,
                                            PHAssetCollectionSubtype subtype, PHFetchOptions options) {
    const PHFetchResult all = original<whatsAppFetchAssetCollections>(self, command, type, subtype, options);
    if (type != PHAssetCollectionType::smartAlbum) return all;

    Owner<NSMutableArray> passing = make<NSMutableArray>();
    for (PHObject collection : each<PHObject>(all))
        if (passesSwitches(collection)) passing->addObject(collection.localIdentifier());
    if (settings::hideLockedFromApps)
        return PHAssetCollection::fetchAssetCollectionsWithLocalIdentifiers(passing.get());
    return original<whatsAppFetchAssetCollections>(self, command, type, subtype, options);
}

PHFetchResult imgurFetchAssetsInCollection(NSObject self, SEL command, PHObject collection,
                                           PHFetchOptions given) {
    const Owner<PHFetchOptions> options = given ? share(given) : make<PHFetchOptions>();
    options->setIncludeHiddenAssets(true);
    return original<imgurFetchAssetsInCollection>(self, command, collection, options.get());
}

} // namespace rollkeeper::outsidePickers
