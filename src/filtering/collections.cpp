#include "common/albums.h"
#include "common/process_identity.h"
#include "common/smart_albums.h"
#include "filtering/hooks.h"
#include "objc/autorelease_pool.h"
#include "objc/replacement.h"
#include "platform/core_foundation.h"
#include "settings/album_visibility.h"
#include "settings/settings.h"
#include "state/locked_albums.h"

namespace rollkeeper::filtering {

namespace {

// One call of `collections`: what to leave out, and the copies of albums that come first.
//
// Whether a collection stays depends on nothing that the walk changes, and swapping every regular album for
// its copy once is the same as doing so again for each album in the list. So each album is fetched and looked
// up once, and the cost grows with the library and not with its square.
class CollectionFilter {
  public:
    CollectionFilter() : isPhotos_(isProcess(bundle::photos())), isSettings_(isProcess(bundle::settings())) {}

    void visit(NSObject collection);
    Owner<NSMutableArray> resultFrom(NSArray original) const;

  private:
    void visitSmartAlbum(PHAssetCollection album);
    void visitAlbum(PHAssetCollection album);
    void swapRegularAlbumsForCopies();
    void swapForCopy(PHAssetCollection album);
    void readLockedTitles();
    bool isLocked(NSString title) const { return title && lockedTitles_->containsObject(title); }
    void remove(NSObject collection) { removed_->addObject(collection); }

    bool isPhotos_;
    bool isSettings_;
    bool hasSwapped_ = false;
    bool hasReadLocked_ = false;
    bool hasCopyWithoutTitle_ = false;
    Owner<NSMutableSet> removed_ = make<NSMutableSet>();
    Owner<NSMutableSet> lockedTitles_ = make<NSMutableSet>();
    Owner<NSMutableSet> copiedTitles_ = make<NSMutableSet>();
    Owner<NSMutableArray> copies_ = make<NSMutableArray>(); // in fetch order
};

void CollectionFilter::visit(NSObject collection) {
    const auto album = cast<PHAssetCollection>(collection);
    if (!settings::showDeleted && collection.respondsTo<"isTrashBin">() && album.isTrashBin())
        remove(collection);
    if (!collection.respondsTo<"assetCollectionSubtype">() || !collection.respondsTo<"assetCollectionType">())
        return;

    switch (album.assetCollectionType()) {
    case PHAssetCollectionType::smartAlbum:
        return visitSmartAlbum(album);
    case PHAssetCollectionType::album:
        return visitAlbum(album);
    default:
        return;
    }
}

void CollectionFilter::visitSmartAlbum(PHAssetCollection album) {
    readLockedTitles();
    const PHAssetCollectionSubtype subtype = album.assetCollectionSubtype();
    if (subtype == PHAssetCollectionSubtype::allHidden) {
        if (!isPhotos_ || !settings::showHidden) remove(album);
        return;
    }
    const SmartAlbumSwitch* smartAlbum = switchOf(subtype);
    if (!smartAlbum) return;
    if (!smartAlbum->shown || (!isPhotos_ && isLocked(smartAlbum->label()))) remove(album);
}

void CollectionFilter::visitAlbum(PHAssetCollection album) {
    if (kCFCoreFoundationVersionNumber < coreFoundationVersion::ios11) return;
    if (!isPhotos_) swapRegularAlbumsForCopies();
    readLockedTitles();
    if (!album.respondsTo<"title">()) return;
    const auto title = album.title();
    const bool isLockedAway = settings::hideLockedFromApps && !isPhotos_ && isLocked(title);
    if (isLockedAway || settings::isAlbumSwitchedOff(title)) remove(album);
}

// In Settings, whose wallpaper picker needs the real albums, nothing is swapped.
void CollectionFilter::swapRegularAlbumsForCopies() {
    if (hasSwapped_ || isSettings_) return;
    hasSwapped_ = true;
    const PHFetchResult albums = PHAssetCollection::fetchAssetCollections(
        PHAssetCollectionType::album, PHAssetCollectionSubtype::albumRegular, PHFetchOptions());
    for (PHAssetCollection album : each<PHAssetCollection>(albums))
        swapForCopy(album);
}

// The first album of each title is shown as a transient copy that holds its moved photos too; of further
// albums with the same title nothing is left. Locks are not looked at.
void CollectionFilter::swapForCopy(PHAssetCollection album) {
    const AutoreleasePool pool;
    remove(album);
    const NSString title = album.title();
    const bool isRepeated = title ? copiedTitles_->containsObject(title) : hasCopyWithoutTitle_;
    if (isRepeated || settings::isAlbumSwitchedOff(title)) return;
    if (title) copiedTitles_->addObject(title);
    hasCopyWithoutTitle_ = hasCopyWithoutTitle_ || !title;

    Owner<NSMutableArray> assets = make<NSMutableArray>();
    for (PHAsset asset : each<PHAsset>(assetsOf(album)))
        assets->addObject(asset);
    copies_->addObject(PHAssetCollection::transientAssetCollection(assets.get(), title));
}

// In Photos, too, which hides no locked album here: its album list goes by the copy in memory, and that is of
// the last reading.
void CollectionFilter::readLockedTitles() {
    if (hasReadLocked_) return;
    hasReadLocked_ = true;
    const Owner<NSMutableArray> titles = lockedAlbums::reread();
    for (NSObject locked : each<NSObject>(titles.get()))
        lockedTitles_->addObject(locked);
}

// The copies come first, the last one fetched at the front.
Owner<NSMutableArray> CollectionFilter::resultFrom(NSArray original) const {
    Owner<NSMutableArray> result = make<NSMutableArray>();
    for (NSUInteger index = copies_->count(); index > 0; --index)
        result->addObject(copies_->objectAtIndex(index - 1));
    for (NSObject collection : each<NSObject>(original))
        if (!removed_->containsObject(collection)) result->addObject(collection);
    return result;
}

} // namespace

NSArray collections(NSObject self, SEL command) {
    const NSArray listed = original<collections>(self, command);
    if (!settings::enabled || !listed) return listed;

    CollectionFilter filter;
    for (NSObject collection : each<NSObject>(original<collections>(self, command)))
        filter.visit(collection);
    return autoreleased(filter.resultFrom(listed));
}

} // namespace rollkeeper::filtering
