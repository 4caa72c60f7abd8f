#include "common/albums.h"
#include "common/current_controllers.h"
#include "common/hiding.h"
#include "common/tabs.h"
#include "objc/replacement.h"
#include "photos/albumactions/hooks.h"

namespace rollkeeper::albumContents {

namespace {

// Kept beside the album's controller for later use; nothing reads it yet.
constinit WeakGlobal<NSObject> currentAlbumLayout;

Owner<NSMutableArray> assetsInFewerAlbumsThan(NSUInteger limit, NSObject selection) {
    Owner<NSMutableArray> found = make<NSMutableArray>();
    const Owner<NSMutableArray> photos = photosIn(selection);
    for (PHAsset asset : each<PHAsset>(photos))
        if (countOfAlbumsHolding(asset) < limit) found->addObject(asset);
    return found;
}

Owner<Block> ignoreCompletion() {
    return block<void()>([] {});
}

} // namespace

// Before the removal a photo that will be in no album is still in this one.
void removeSelectedAssets(PUPhotosAlbumViewController self, SEL command, Block completion) {
    apply(Photos::shown, assetsInFewerAlbumsThan(2, self.selectedAssets()), Block());
    showStrandedLater(photosIn(self.selectedAssets()));
    original<removeSelectedAssets>(self, command, completion);
}

void removeButtonPressed(PUPhotosAlbumViewController self, SEL command, NSObject sender) {
    original<removeButtonPressed>(self, command, sender);
    if (!self.isTrashBinViewController()) return;
    apply(Photos::shown, assetsInFewerAlbumsThan(1, self.selectedAssets()), ignoreCompletion());
}

void performRestoreAction(PUOneUpBarsController self, SEL command) {
    original<performRestoreAction>(self, command);
    const PHAsset asset = self.browsingSession().viewModel().currentAssetReference().asset();
    if (!asset || countOfAlbumsHolding(asset) > 0) return;
    apply(Photos::shown, NSArray::arrayWithObject(asset), ignoreCompletion());
}

void setAssetCollection(PUPhotosAlbumViewController self, SEL command, PHAssetCollection collection,
                        PHFetchResult container, NSPredicate filter, NSObject existingResults) {
    currentAlbumViewController.set(self);
    currentAlbumLayout.set(self.collectionViewLayout());
    original<setAssetCollection>(self, command, collection, container, filter, existingResults);
}

void oneUpDidLayoutSubviews(PUOneUpViewController self, SEL command) {
    original<oneUpDidLayoutSubviews>(self, command);
    currentOneUpViewController.set(self);
}

void gridWillAppear(PUZoomableGridViewController self, SEL command, bool animated) {
    original<gridWillAppear>(self, command, animated);
    currentGridViewController.set(self);
}

// By the displayed title, so it holds for an English user interface only: accepted.
bool shouldShowSectionHeaders(PUPhotosAlbumViewController self, SEL command) {
    const NSString title = self.assetCollection().localizedTitle();
    if (title.isEqualToString(cameraRollTitle())) return false;
    return original<shouldShowSectionHeaders>(self, command);
}

bool initiallyScrolledToBottom(PUPhotosAlbumViewController, SEL) { return true; }

// With one tab left the tab bar is hidden, and the view is laid out as if it were there.
bool wantsTabBarVisible(PUPhotosAlbumViewController self, SEL command) {
    if (settings::enabled && hasOneTab()) return true;
    return original<wantsTabBarVisible>(self, command);
}

} // namespace rollkeeper::albumContents
