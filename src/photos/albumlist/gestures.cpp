#include "common/haptics.h"
#include "common/unlocking.h"
#include "photos/albumlist/hooks.h"
#include "photos/albumlist/state.h"
#include "state/locked_albums.h"

namespace rollkeeper::albumList {

void handleHiddenPress(PUAlbumListViewController self, SEL, UIGestureRecognizer recognizer) {
    if (recognizer.state() == UIGestureRecognizerState::began) self.reloadContentView();
}

// Locks or unlocks the album of the pressed cell; a cell without a title stands for none. A recogniser that
// is replayed after authorisation shows "possible".
void handleLongPress(PUAlbumListViewController self, SEL, UIGestureRecognizer pressed) {
    const UIGestureRecognizerState state = pressed.state();
    if (state != UIGestureRecognizerState::began && state != UIGestureRecognizerState::possible) return;
    if (albumListEditing) return;

    hapticTick();
    const Owner<UIGestureRecognizer> recognizer = share(pressed);
    const Owner<NSMutableArray> titles = lockedAlbums::rereadOrEmpty();
    const NSString title = contentViewOf(recognizer->view()).title();
    if (!titles->containsObject(title)) {
        if (title.length() == 0) return;
        titles->addObject(title);
    } else if (unlockGranted) {
        unlockGranted = false;
        pendingLockToggleRecognizer.clear();
        titles->removeObject(title);
    } else {
        pendingLockToggleRecognizer.set(recognizer);
        self.unlockAlbum(static_cast<int>(UnlockPurpose::ToggleLock), title);
        return;
    }
    lockedAlbums::save(titles);
    self.reloadContentView();
    reloadContentViewAfter(0.5, self);
}

} // namespace rollkeeper::albumList
