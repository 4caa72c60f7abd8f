#include "common/current_controllers.h"
#include "common/hiding.h"
#include "photos/albumlist/hooks.h"

namespace rollkeeper::albumList {

namespace {

void removeFromAlbum(PHAssetCollection album, const Owner<NSMutableArray>& photos) {
    const PHFetchResult assets = PHAsset::fetchAssetsInAssetCollection(album, PHFetchOptions());
    PHPhotoLibrary::sharedPhotoLibrary().performChanges(
        block<void()>(
            [](PHAssetCollection source, PHFetchResult held, NSMutableArray removed) {
                PHAssetCollectionChangeRequest::changeRequest(source, held).removeAssets(removed);
            },
            share(album), share(assets), photos),
        block<void(bool, NSError)>([](bool, NSError) {}));
}

// What was picked: the photos, and the album that they leave, if any.
struct Picked {
    Owner<NSMutableArray> photos = {};
    Owner<PHAssetCollection> source = {};
};

// Photos that were picked inside another album leave it; the Camera Roll they leave by being hidden.
Owner<PHAssetCollection> sourceAlbum(PUPhotosAlbumViewController controller) {
    const PHAssetCollection album = controller.assetCollection();
    const bool isCameraRoll = album.assetCollectionSubtype() == PHAssetCollectionSubtype::userLibrary;
    return share(isCameraRoll ? PHAssetCollection() : album);
}

Owner<NSMutableArray> photoOnScreen() {
    const Owner<PUOneUpViewController> oneUp = currentOneUpViewController.load();
    const PUImageTileViewController tile = oneUp->currentContentTileController();
    Owner<NSMutableArray> photos = make<NSMutableArray>();
    if (tile.respondsTo<"asset">()) photos->addObject(tile.asset());
    return photos;
}

// By the controllers that were seen last. Another tab may have shown them, and something else be picked now.
Picked selectedLast() {
    if (const auto album = currentAlbumViewController.load()) {
        Owner<NSMutableArray> photos = photosIn(album->selectedAssets());
        if (photos->count() == 0) return {.photos = photoOnScreen()};
        return {.photos = std::move(photos), .source = sourceAlbum(album)};
    }
    if (const auto grid = currentGridViewController.load())
        return {.photos = photosIn(grid->selectedAssets())};
    return {};
}

// By the list itself; nothing where it does not tell.
Owner<NSMutableArray> transferredPhotos(PUAlbumListViewController list) {
    if (!list.respondsTo<"sessionInfo">()) return Owner<NSMutableArray>();
    const PUSessionInfo session = list.sessionInfo();
    if (!session.respondsTo<"transferredAssets">()) return Owner<NSMutableArray>();
    return photosIn(session.transferredAssets());
}

Owner<NSMutableArray> commonPhotos(NSArray photos, NSArray others) {
    const Owner<NSMutableSet> wanted = make<NSMutableSet>();
    for (PHAsset photo : each<PHAsset>(others))
        wanted->addObject(photo);
    Owner<NSMutableArray> common = make<NSMutableArray>();
    for (PHAsset photo : each<PHAsset>(photos))
        if (wanted->containsObject(photo)) common->addObject(photo);
    return common;
}

// What the list knows to be on its way goes before what was selected last: no other photo may be touched.
Picked pickedPhotos(PUAlbumListViewController list) {
    Picked picked = selectedLast();
    Owner<NSMutableArray> transferred = transferredPhotos(list);
    if (transferred->count() == 0) return picked;
    picked.photos = commonPhotos(picked.photos, transferred);
    if (picked.photos->count() == 0) return {.photos = std::move(transferred)};
    return picked;
}

} // namespace

// Photos' own selection code adds the photos to the album afterwards. Moving hides them here, so that they
// leave the Camera Roll; copying leaves them as they are. Where nothing can be hidden, moving is copying.
void reloadCameraRoll(PUAlbumListViewController self, SEL, bool move) {
    if (!move || !canHideAssets()) return;
    const Picked picked = pickedPhotos(self);
    if (picked.source) removeFromAlbum(picked.source, picked.photos);
    apply(Photos::hidden, picked.photos, Block());
}

} // namespace rollkeeper::albumList
