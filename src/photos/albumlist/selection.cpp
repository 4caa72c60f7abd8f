#include "common/albums.h"
#include "common/sheets.h"
#include "common/unlocking.h"
#include "objc/replacement.h"
#include "photos/albumlist/content_view_at.h"
#include "photos/albumlist/hooks.h"
#include "photos/albumlist/state.h"
#include "platform/core_foundation.h"
#include "state/locked_albums.h"

namespace rollkeeper::albumList {

namespace {

void addPickedPhotos(PUAlbumListViewController self, NSIndexPath path, bool move) {
    self.reloadCameraRollWithMove(move);
    original<didSelectItem>(self, selector<"didSelectItemAtIndexPath:">(), path);
}

// The album list is being used to pick an album for photos.
void askMoveOrCopy(PUAlbumListViewController self, NSIndexPath path, double newerThan) {
    Alert sheet(UIAlertControllerStyle::actionSheet, "Add photos to album"_ns,
                "Move or copy photos to the album?"_ns);
    const auto add = [](PUAlbumListViewController list, NSIndexPath picked, bool move, UIAlertAction) {
        addPickedPhotos(list, picked, move);
    };
    sheet.addAction("Move"_ns, add, share(self), share(path), true);
    sheet.addAction("Copy"_ns, add, share(self), share(path), false);
    sheet.addCancel("Cancel"_ns);
    sheet.present(self, contentViewAt(self, path, newerThan));
}

void selectAfterUnlock(PUAlbumListViewController self, SEL command, NSIndexPath path) {
    const Owner<NSIndexPath> replayed = share(path);
    unlockGranted = false;
    pendingSelectionIndexPath.clear();
    if (!self.pickerBannerView()) {
        original<didSelectItem>(self, command, path);
    } else {
        askMoveOrCopy(self, path, coreFoundationVersion::above10_2);
    }
}

} // namespace

void didSelectItem(PUAlbumListViewController self, SEL command, NSIndexPath path) {
    lockedAlbumOpen = false;
    if (unlockGranted) return selectAfterUnlock(self, command, path);

    pendingSelectionIndexPath.set(path);
    const NSString title = contentViewAt(self, path, coreFoundationVersion::above10_2).title();
    if (lockedAlbums::inMemoryContains(title)) {
        self.unlockAlbum(static_cast<int>(UnlockPurpose::Open), title);
    } else if (title.isEqualToString(cameraRollTitle()) || !self.pickerBannerView()) {
        original<didSelectItem>(self, command, path);
    } else {
        askMoveOrCopy(self, path, coreFoundationVersion::above10_2Anchor);
    }
}

} // namespace rollkeeper::albumList
