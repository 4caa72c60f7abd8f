#include "common/unlocking.h"
#include "photos/albumlist/hooks.h"
#include "photos/albumlist/state.h"

namespace rollkeeper::albumList {

void unlockAlbum(PUAlbumListViewController self, SEL, int purpose, NSString title) {
    unlock(UnlockFlow::albumList, self, purpose, title);
}

void requestPassword(PUAlbumListViewController self, SEL, int purpose) {
    rollkeeper::requestPassword(UnlockFlow::albumList, self, purpose, self);
}

// Carries the interrupted action out again. Its arguments are kept here, since the action clears the globals.
void unlockAuthorised(PUAlbumListViewController self, SEL, int purpose) {
    unlockGranted = true;
    switch (static_cast<UnlockPurpose>(purpose)) {
    case UnlockPurpose::ToggleLock: {
        const auto recognizer = share(pendingLockToggleRecognizer.get());
        self.handleLongPress(recognizer);
        break;
    }
    case UnlockPurpose::Delete: {
        const auto contentView = share(pendingDeleteContentView.get());
        const auto sender = share(pendingDeleteAction.get());
        self.performDeleteAction(contentView, sender);
        break;
    }
    case UnlockPurpose::Open: {
        const auto path = share(pendingSelectionIndexPath.get());
        self.didSelectItem(path);
        lockedAlbumOpen = true; // the selection cleared it
        break;
    }
    }
}

} // namespace rollkeeper::albumList
