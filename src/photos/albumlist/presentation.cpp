#include "common/album_cell.h"
#include "common/albums.h"
#include "common/edit_capabilities.h"
#include "common/lock_overlay.h"
#include "common/tags.h"
#include "objc/replacement.h"
#include "photos/albumlist/hooks.h"
#include "photos/albumlist/state.h"
#include "platform/core_foundation.h"
#include "settings/settings.h"
#include "state/locked_albums.h"
#include "state/paths.h"

namespace rollkeeper::albumList {

namespace {

constexpr NSTimeInterval reloadPressDuration = 1.0;
constexpr NSTimeInterval lockPressDuration = 0.9;
constexpr CGFloat widestThumbnail = 175.0;

// The sides on screens of the widths that phones have; any other width is divided.
double thumbnailSide(int screenWidth) {
    switch (screenWidth) {
    case 320:
        return 136;
    case 375:
        return 164;
    case 414:
        return 180;
    default:
        return screenWidth / 2.3 + 1.0;
    }
}

Owner<UILongPressGestureRecognizer> addLongPress(UIView view, NSObject target, SEL action,
                                                 NSTimeInterval duration) {
    Owner<UILongPressGestureRecognizer> recognizer = UILongPressGestureRecognizer::withTarget(target, action);
    recognizer->setMinimumPressDuration(duration);
    view.addGestureRecognizer(recognizer.get());
    return recognizer;
}

// The bar outlives the lists that are pushed below it. Up to iOS 8 a recogniser neither owns its target nor
// forgets it: there the list lives as long as the recogniser.
void addReloadPress(PUAlbumListViewController list) {
    const auto recognizer = addLongPress(list.navigationController().navigationBar(), list,
                                         selector<"handleHiddenPress:">(), reloadPressDuration);
    if (kCFCoreFoundationVersionNumber < coreFoundationVersion::ios9) keepAlive(list, recognizer.get());
}

// The list is written empty where there is none; a file that is there and cannot be read is left alone.
void readLockedAlbums() {
    const Owner<NSMutableArray> titles = lockedAlbums::rereadOrEmpty();
    if (!NSFileManager::defaultManager().fileExistsAtPath(path::lockedAlbums())) lockedAlbums::save(titles);
}

void readLockedAlbumPaths() {
    const NSMutableDictionary paths =
        NSMutableDictionary::dictionaryWithContentsOfFile(path::lockedAlbumPaths());
    lockedAlbumPaths.set(paths ? paths : make<NSMutableDictionary>().get());
}

// A user album titled "Screenshots" shows the count of the smart album; kept on purpose.
PHAssetCollection countedCollection(NSString title) {
    if (!title.isEqualToString("Screenshots"_ns)) return albumWithTitle(title);
    return cast<PHAssetCollection>(PHAssetCollection::fetchAssetCollections(
                                       PHAssetCollectionType::smartAlbum,
                                       PHAssetCollectionSubtype::screenshots, optionsIncludingHidden())
                                       .firstObject());
}

void showCountAsSubtitle(PUAlbumListCellContentView contentView, NSString title) {
    if (!settings::layoutShowSubtitle) return;
    if (contentView.editCapabilities() != editCapabilities::userAlbum) return;
    contentView.setSubtitle(decimalString(assetsOf(countedCollection(title)).count()));
}

void takeThumbnailSideFromLayout(PUAlbumListCellContentView contentView) {
    const CGFloat width = contentView.stackView().frame().size.width;
    if (width > 0 && width < widestThumbnail) setAlbumCellSide(width);
}

void placeButton(PUAlbumListCellContentView contentView, NSInteger tag, CGFloat y, bool visible) {
    const Owner<UIView> button = share(contentView.viewWithTag(tag));
    button->setFrame({{0, y}, {22, 22}});
    contentView.bringSubviewToFront(button.get());
    if (!visible) button->removeFromSuperview();
}

void placeButtons(PUAlbumListCellContentView contentView) {
    if (contentView.respondsTo<"createButtons">()) contentView.createButtons();
    const CGFloat lockY = contentView.editCapabilities() == editCapabilities::stockAlbum ? 10 : 70;
    placeButton(contentView, tag::moveButton, 40, albumListEditing && contentView.deleteButton());
    placeButton(contentView, tag::lockButton, lockY, albumListEditing);
}

void decorate(PUAlbumListCellContentView contentView) {
    const NSString title = contentView.title();
    showCountAsSubtitle(contentView, title);
    takeThumbnailSideFromLayout(contentView);
    const Owner<NSMutableArray> lockedTitles = lockedAlbums::reread();
    updateLockOverlay(contentView, lockedTitles->containsObject(title), albumListCover());
}

} // namespace

void viewWillAppear(PUAlbumListViewController self, SEL command, bool animated) {
    original<viewWillAppear>(self, command, animated);

    setAlbumCellSide(thumbnailSide(static_cast<int>(UIScreen::mainScreen().bounds().size.width)));
    readLockedAlbums();
    readLockedAlbumPaths();
    // One more recogniser with each appearance: accepted.
    addReloadPress(self);
    if (!self.pickerBannerView()) albumListController.set(self);
}

// The two pass-throughs keep their places in the hook table and add nothing.

void viewDidLayoutSubviews(PUAlbumListViewController self, SEL command) {
    original<viewDidLayoutSubviews>(self, command);
}

void reloadContentView(PUAlbumListViewController self, SEL command) {
    original<reloadContentView>(self, command);
}

UIView cellForItem(PUAlbumListViewController self, SEL command, UIView collectionView, NSIndexPath path) {
    albumListFillsCell = true;
    const auto cell = cast<PUAlbumListCell>(original<cellForItem>(self, command, collectionView, path));
    albumListFillsCell = false;
    const PUAlbumListCellContentView contentView = contentViewOf(cell);

    // A reused cell gains another recogniser each time: intended to stay so.
    addLongPress(cell, self, selector<"handleLongPress:">(), lockPressDuration);
    decorate(contentView);
    cell.setHidden(false);
    placeButtons(contentView);
    return cell;
}

} // namespace rollkeeper::albumList
