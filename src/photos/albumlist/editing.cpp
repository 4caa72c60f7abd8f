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

// An album that still exists was not deleted after all: nothing of it may come back.
void dropCancelledDelete() {
    if (albumWithTitle(pendingDeleteAlbumTitle.get())) pendingDeleteOrphanAssets.clear();
    pendingDeleteAlbumTitle.clear();
}

void showOrphans() {
    const Owner<NSMutableArray> orphans = pendingDeleteOrphanAssets.take();
    if (orphans->count() > 0) apply(Photos::shown, orphans.get(), Block());
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
}

void setEditing(PUAlbumListViewController self, SEL command, bool editing, bool animated) {
    original<setEditing>(self, command, editing, animated);
    albumListEditing = editing;
    if (!editing) self.reloadContentView();
    dropCancelledDelete();
    if (!editing) showOrphans();
}

} // namespace rollkeeper::albumList
