#include "common/process_identity.h"
#include "filtering/hooks.h"
#include "objc/replacement.h"
#include "settings/settings.h"
#include "state/locked_albums.h"

namespace rollkeeper::filtering {

namespace {

// The caller's own options, changed in place, or new ones that live as long as the fetch.
class Options {
  public:
    explicit Options(PHFetchOptions given) : options_(given ? share(given) : make<PHFetchOptions>()) {}
    bool includeHidden() const { return options_->includeHiddenAssets(); }
    void includeHidden(bool include) const { options_->setIncludeHiddenAssets(include); }
    operator PHFetchOptions() const { return options_; }

  private:
    Owner<PHFetchOptions> options_;
};

bool isOfType(PHObject collection, PHAssetCollectionType type) {
    return collection.respondsTo<"assetCollectionType">() &&
           cast<PHAssetCollection>(collection).assetCollectionType() == type;
}

// The moved photos of a locked album stay out of other applications' sight.
bool keepsMovedPhotosToItself(PHAssetCollection album) {
    if (!settings::hideLockedFromApps || !album.respondsTo<"title">()) return false;
    const NSString title = album.title();
    return title && lockedAlbums::reread()->containsObject(title) && !isProcess(bundle::photos());
}

// Options that ask for moved photos get them whatever the list says, so it is not read then; but in Photos,
// whose album list goes by the copy in memory.
bool showsMovedPhotos(PHObject collection, const Options& options) {
    if (!isOfType(collection, PHAssetCollectionType::album)) return false;
    const bool isAsked = options.includeHidden() && !isProcess(bundle::photos());
    return isAsked || !keepsMovedPhotosToItself(cast<PHAssetCollection>(collection));
}

} // namespace

// Nothing is filtered here: what a fetch result holds was decided when it was fetched.
NSArray fetchedObjects(PHFetchResult self, SEL command) { return original<fetchedObjects>(self, command); }

NSObject fetchedObjectIDsSet(PHFetchResult self, SEL command) {
    return isProcess(bundle::photos()) ? original<fetchedObjectIDsSet>(self, command) : NSObject();
}

PHFetchResult fetchAssetsInCollection(NSObject self, SEL command, PHObject collection, PHFetchOptions given) {
    const Options options(given);
    if (isOfType(collection, PHAssetCollectionType::smartAlbum)) {
        options.includeHidden(false);
    } else if (isOfType(collection, PHAssetCollectionType::moment) || showsMovedPhotos(collection, options)) {
        options.includeHidden(true);
    }
    return original<fetchAssetsInCollection>(self, command, collection, PHFetchOptions(options));
}

PHFetchResult fetchKeyAssets(NSObject self, SEL command, PHObject collection, PHFetchOptions given) {
    const Options options(given);
    if (isOfType(collection, PHAssetCollectionType::album)) options.includeHidden(true);
    if (isOfType(collection, PHAssetCollectionType::smartAlbum)) options.includeHidden(false);
    return original<fetchKeyAssets>(self, command, collection, PHFetchOptions(options));
}

PHFetchResult fetchAssetCollections(NSObject self, SEL command, PHAssetCollectionType type,
                                    PHAssetCollectionSubtype subtype, PHFetchOptions given) {
    const Options options(given);
    options.includeHidden(true);
    return original<fetchAssetCollections>(self, command, type, subtype, PHFetchOptions(options));
}

} // namespace rollkeeper::filtering
