#include "common/album_moving.h"
#include "common/albums.h"
#include "common/sheets.h"
#include "objc/replacement.h"
#include "photos/albumactions/hooks.h"
#include "settings/album_visibility.h"
#include "state/locked_albums.h"

namespace rollkeeper::photosFrame {

namespace {

UIViewController screenOf(PUNavigationController navigation) {
    if (!navigation.respondsTo<"_currentToolbarViewController">()) return UIViewController();
    return navigation.currentToolbarViewController();
}

// Runs on every access to the bar: the button comes back whenever the stock code has taken it off.
void addSyncButton(PUNavigationController navigation, UIViewController screen, UINavigationItem item,
                   NSArray items) {
    const NSString title = ifKindOf<PUAlbumListViewController>(screen) ? "Reset"_ns : "Move"_ns;
    const auto button =
        UIBarButtonItem::withTitle(title, UIBarButtonItemStyle::plain, navigation, selector<"syncAlbums">());
    const Owner<NSMutableArray> extended = make<NSMutableArray>();
    for (NSObject present : each<NSObject>(items))
        extended->addObject(present);
    extended->addObject(button.get());
    item.setLeftBarButtonItems(extended.get());
}

void keepFirstItem(UINavigationItem item, NSArray items) {
    if (items.count() > 0) item.setLeftBarButtonItems(NSArray::arrayWithObject(items.objectAtIndex(0)));
}

void addMovedPhotos(PHAssetCollection album, NSMutableArray photos) {
    if (settings::isAlbumSwitchedOff(album.title())) return;
    for (PHAsset asset : each<PHAsset>(assetsOf(album)))
        if (asset.isHidden()) photos.addObject(asset);
}

// Locked albums, and albums that the settings switch off, keep their photos out of the Camera Roll. A photo
// in two albums is listed twice, which does no harm.
void returnAllAlbums() {
    Owner<NSMutableArray> photos = make<NSMutableArray>();
    const Owner<NSMutableArray> lockedTitles = lockedAlbums::reread();
    const PHFetchResult albums = PHAssetCollection::fetchAssetCollections(
        PHAssetCollectionType::album, PHAssetCollectionSubtype::albumRegular, PHFetchOptions());
    for (PHAssetCollection album : each<PHAssetCollection>(albums)) {
        const NSString title = album.title();
        if (title && lockedTitles->containsObject(title)) continue;
        addMovedPhotos(album, photos);
    }
    returnPhotos(std::move(photos));
}

void askToReturnAll(UIViewController list) {
    Alert sheet(UIAlertControllerStyle::actionSheet, "Move Album Photos"_ns,
                "Reset photo albums by returning all photos to the camera roll? "
                "Photos will remain in folders but also appear in the camera roll."_ns);
    sheet.addAction("Return all"_ns, [](UIAlertAction) { returnAllAlbums(); });
    sheet.addCancel("Cancel"_ns);
    sheet.present(list);
}

// Asks no authorisation, even for a locked album: whoever sees its contents has unlocked it.
void askToMove(PUPhotosAlbumViewController album) {
    Alert sheet(UIAlertControllerStyle::actionSheet, "Move Album Photos"_ns,
                "Copy photos back into the camera roll or move them out?"_ns);
    addMoveActions(sheet, album.assetCollection().title());
    sheet.present(album);
}

} // namespace

UINavigationBar navigationBar(PUNavigationController self, SEL command) {
    const UINavigationBar bar = original<navigationBar>(self, command);
    const UINavigationItem item = bar.topItem();
    const NSArray items = item.leftBarButtonItems();
    const UIViewController screen = screenOf(self);
    const bool isSharing = static_cast<bool>(ifKindOf<PUPhotosSharingViewController>(screen));
    if (!isSharing && items.count() < 2) {
        addSyncButton(self, screen, item, items);
    } else if (isSharing && items.count() == 1) {
        keepFirstItem(item, items);
    }
    return bar;
}

void syncAlbums(PUNavigationController self, SEL) {
    const UIViewController screen = screenOf(self);
    if (ifKindOf<PUAlbumListViewController>(screen)) {
        askToReturnAll(screen);
    } else if (const auto album = ifKindOf<PUPhotosAlbumViewController>(screen)) {
        askToMove(album);
    }
}

// The sharing screen keeps its own first button.
void sharingDidLayoutSubviews(PUPhotosSharingViewController self, SEL command) {
    original<sharingDidLayoutSubviews>(self, command);
    const UINavigationItem item = self.navigationController().navigationBar().topItem();
    keepFirstItem(item, item.leftBarButtonItems());
}

} // namespace rollkeeper::photosFrame
