#include "capture/newest_photo.h"

#include "common/albums.h"
#include "common/hiding.h"

namespace rollkeeper {

namespace {

Owner<Block> ignoreOutcome() {
    return block<void(bool, NSError)>([](bool, NSError) {});
}

void addNewestPhoto(PHAssetCollection album) {
    const PHAsset photo = newestPhoto();
    if (!photo) return;
    PHPhotoLibrary::sharedPhotoLibrary().performChanges(
        block<void()>(
            [](PHAssetCollection target, PHAsset added) {
                const PHFetchResult held = PHAsset::fetchAssetsInAssetCollection(target, PHFetchOptions());
                PHAssetCollectionChangeRequest::changeRequest(target, held)
                    .addAssets(NSArray::arrayWithObject(added));
            },
            share(album), share(photo)),
        ignoreOutcome());
}

// `placeholders` holds the placeholder of the album that was created.
void addNewestPhotoToCreated(NSArray placeholders) {
    const auto placeholder = cast<PHObjectPlaceholder>(placeholders.firstObject());
    const NSString identifier = placeholder.localIdentifier();
    if (!identifier) return;
    const PHFetchResult created =
        PHAssetCollection::fetchAssetCollectionsWithLocalIdentifiers(NSArray::arrayWithObject(identifier));
    if (const auto album = cast<PHAssetCollection>(created.firstObject())) addNewestPhoto(album);
}

} // namespace

void createAlbum(NSString title, AfterCreation after) {
    const Owner<NSMutableArray> placeholders = make<NSMutableArray>();
    PHPhotoLibrary::sharedPhotoLibrary().performChanges(
        block<void()>(
            [](NSString wanted, NSMutableArray made) {
                made.addObject(PHAssetCollectionChangeRequest::creationRequest(wanted)
                                   .placeholderForCreatedAssetCollection());
            },
            share(title), placeholders),
        block<void(bool, NSError)>(
            [](NSMutableArray made, AfterCreation next, bool success, NSError) {
                if (success && next == AfterCreation::addNewestPhoto) addNewestPhotoToCreated(made);
            },
            placeholders, after));
}

void addNewestPhotoToAlbum(NSString title) {
    if (!title || !classNamed<PHPhotoLibrary::className>()) return;
    if (const PHAssetCollection album = albumWithTitle(title)) {
        addNewestPhoto(album);
    } else {
        createAlbum(title, AfterCreation::addNewestPhoto);
    }
}

void hideNewestPhoto() {
    const PHAsset photo = newestPhoto();
    if (photo) apply(Photos::hidden, NSArray::arrayWithObject(photo), block<void()>([] {}));
}

} // namespace rollkeeper
