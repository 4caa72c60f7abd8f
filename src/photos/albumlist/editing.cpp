#include "common/albums.h"
#include "common/hiding.h"
#include "common/unlocking.h"
#include "objc/replacement.h"
#include "photos/albumlist/hooks.h"
#include "photos/albumlist/state.h"
#include "state/locked_albums.h"

namespace rollkeeper::albumList {

namespace {

// The photos that are in this album only: deleting it would leave them in none.
Owner<NSMutableArray> orphansOf(NSString title) {
    Owner<NSMutableArray> orphans = make<NSMutableArray>();
    for (PHAsset asset : each<PHAsset>(assetsOf(albumWithTitle(title))))
        if (countOfAlbumsHolding(asset) < 2) orphans->addObject(asset);
    return orphans;
}

constexpr double deleteReachesLibrary = 1.0; // seconds, as a rule

// Returns the photos of the carried delete once its album has gone; until then nothing of it may come back.
// False while the album is still there.
bool completeDelete() {
    if (albumWithTitle(pendingDeleteAlbumTitle.get())) return false;
    const Owner<NSString> title = pendingDeleteAlbumTitle.take();
    const Owner<NSMutableArray> orphans = pendingDeleteOrphanAssets.take();
    if (orphans->count() > 0) apply(Photos::shown, orphans.get(), Block());
    showStrandedLater(pendingDeletePhotos.take());
    return true;
}

void dropDelete() {
    pendingDeleteAlbumTitle.clear();
    pendingDeleteOrphanAssets.clear();
    pendingDeletePhotos.clear();
}

// The library may take longer to delete an album than a person to end editing, so an album that is still
// there gets one more look shortly after and one at the next end of editing. If it is there even then, the
// delete was cancelled.
void followDeleteAfterEditing() {
    if (completeDelete()) return;
    if (pendingDeleteOutlivedEditing) return dropDelete();
    pendingDeleteOutlivedEditing = true;
    onMainQueueAfter(deleteReachesLibrary, [] {
        if (pendingDeleteOutlivedEditing) completeDelete();
    });
}

} // namespace

// Only the last album deleted before the end of editing has its photos returned: a limit that is kept.
void performDeleteAction(PUAlbumListViewController self, SEL command, PUAlbumListCellContentView contentView,
                         NSObject sender) {
    const Owner<NSString> title = share(contentView.title());
    if (!unlockGranted && lockedAlbums::inMemoryContains(title)) {
        pendingDeleteContentView.set(contentView);
        pendingDeleteAction.set(sender);
        self.unlockAlbum(static_cast<int>(UnlockPurpose::Delete), title);
        return;
    }
    const Owner<PUAlbumListCellContentView> deleted = share(contentView);
    const Owner<NSObject> replayed = share(sender);
    if (unlockGranted) {
        unlockGranted = false;
        pendingDeleteContentView.clear();
        pendingDeleteAction.clear();
    }
    original<performDeleteAction>(self, command, contentView, sender);
    pendingDeleteAlbumTitle.set(title);
    pendingDeleteOrphanAssets.set(orphansOf(title));
    pendingDeletePhotos.set(photosIn(assetsOf(albumWithTitle(contentView.title()))));
    pendingDeleteOutlivedEditing = false;
}

void setEditing(PUAlbumListViewController self, SEL command, bool editing, bool animated) {
    original<setEditing>(self, command, editing, animated);
    albumListEditing = editing;
    if (editing) return;
    self.reloadContentView();
    followDeleteAfterEditing();
}

} // namespace rollkeeper::albumList
