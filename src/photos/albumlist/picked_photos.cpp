#include "common/current_controllers.h"
#include "common/hiding.h"
#include "photos/albumlist/hooks.h"

namespace rollkeeper::albumList {

namespace {

void removeFromAlbum(PHAssetCollection album, Owner<NSMutableArray> photos) {
    const PHFetchResult assets = PHAsset::fetchAssetsInAssetCollection(album, PHFetchOptions());
    PHPhotoLibrary::sharedPhotoLibrary().performChanges(
        block<void()>(
            [](PHAssetCollection source, PHFetchResult held, NSMutableArray removed) {
                PHAssetCollectionChangeRequest::changeRequest(source, held).removeAssets(removed);
            },
            share(album), share(assets), photos),
        block<void(bool, NSError)>([](bool, NSError) {}));
}

// Photos that were picked inside another album leave that album.
void removeFromSourceAlbum(PUPhotosAlbumViewController source, const Owner<NSMutableArray>& photos) {
    const PHAssetCollection album = source.assetCollection();
    if (!album || album.assetCollectionSubtype() == PHAssetCollectionSubtype::userLibrary) return;
    removeFromAlbum(album, photos);
}

Owner<NSMutableArray> photoOnScreen() {
    const Owner<PUOneUpViewController> oneUp = currentOneUpViewController.load();
    const PUImageTileViewController tile = oneUp->currentContentTileController();
    Owner<NSMutableArray> photos = make<NSMutableArray>();
    if (tile.respondsTo<"asset">()) photos->addObject(tile.asset());
    return photos;
}

Owner<NSMutableArray> pickedPhotos() {
    if (const auto album = currentAlbumViewController.load()) {
        Owner<NSMutableArray> photos = arrayOf(album->selectedAssets());
        if (photos->count() == 0) return photoOnScreen();
        removeFromSourceAlbum(album, photos);
        return photos;
    }
    if (const auto grid = currentGridViewController.load()) return arrayOf(grid->selectedAssets());
    return Owner<NSMutableArray>();
}

} // namespace

// Photos' own selection code adds the photos to the album afterwards. Moving hides them here, so that they
// leave the Camera Roll; copying leaves them as they are.
void reloadCameraRoll(PUAlbumListViewController, SEL, bool move) {
    if (!move) return;
    apply(Photos::hidden, pickedPhotos(), Block());
}

} // namespace rollkeeper::albumList
