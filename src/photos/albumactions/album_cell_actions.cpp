#include "common/album_cell.h"
#include "common/album_moving.h"
#include "common/haptics.h"
#include "common/sheets.h"
#include "common/unlocking.h"
#include "photos/albumactions/hooks.h"
#include "state/locked_albums.h"

namespace rollkeeper::albumCell {

namespace {

// The action that an unlock interrupts. Not the album list's purposes: the numbers mean other actions.
enum class CellUnlockPurpose : int { RemoveLock = 0, MoveAlbum = 1 };

// On iOS 12 a cell may stand on a screen that is no album list.
void refreshAlbumList(PUAlbumListCellContentView cell) {
    const UIViewController list = cell.viewControllerForAncestor();
    if (list.respondsTo<"reloadContentView">()) cast<PUAlbumListViewController>(list).reloadContentView();
}

} // namespace

void askToMoveAlbum(PUAlbumListCellContentView self, SEL) {
    const NSString title = self.title();
    if (title && lockedAlbums::reread()->containsObject(title)) {
        self.unlockAlbum(static_cast<int>(CellUnlockPurpose::MoveAlbum));
    } else {
        self.moveAlbum();
    }
}

void moveAlbum(PUAlbumListCellContentView self, SEL) {
    Alert sheet(UIAlertControllerStyle::actionSheet, "Move Album"_ns,
                "Copy album photos back to the camera roll or move them out?"_ns);
    addMoveActions(sheet, self.title());
    sheet.present(self.viewControllerForAncestor(), self);
}

// Without a list nothing is added or removed, and the request to write is sent all the same.
void lockAlbum(PUAlbumListCellContentView self, SEL) {
    const Owner<NSMutableArray> titles = lockedAlbums::reread();
    const NSString title = self.title();
    hapticTick();
    if (!title || !titles->containsObject(title)) {
        if (title.length() == 0) return;
        titles->addObject(title);
    } else if (unlockGranted) {
        unlockGranted = false;
        titles->removeObject(title);
    } else {
        self.unlockAlbum(static_cast<int>(CellUnlockPurpose::RemoveLock));
        return;
    }
    lockedAlbums::save(titles);
    refreshAlbumList(self);
}

void unlockAlbum(PUAlbumListCellContentView self, SEL, int purpose) {
    unlock(UnlockFlow::albumCell, self, purpose, self.title());
}

void requestPassword(PUAlbumListCellContentView self, SEL, int purpose) {
    rollkeeper::requestPassword(UnlockFlow::albumCell, self, purpose, self.viewControllerForAncestor());
}

// A move leaves the grant in place, on purpose: the next tap on a locked album's lock button asks nothing.
void unlockAuthorised(PUAlbumListCellContentView self, SEL, int purpose) {
    unlockGranted = true;
    switch (static_cast<CellUnlockPurpose>(purpose)) {
    case CellUnlockPurpose::MoveAlbum:
        return self.moveAlbum();
    case CellUnlockPurpose::RemoveLock:
        return self.lockAlbum();
    }
}

} // namespace rollkeeper::albumCell
