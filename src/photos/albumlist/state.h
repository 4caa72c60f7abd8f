// What the album list remembers between its methods. Main thread.
#pragma once

#include "objc/global.h"
#include "objc/weak.h"
#include "platform/photos_ui.h"

namespace rollkeeper::albumList {

// The action that an unlock interrupts and that is carried out again afterwards.
enum class UnlockPurpose : int { Open = 0, Delete = 1, ToggleLock = 2 };

inline constinit bool albumListEditing = false;

// The interrupted actions. A replay takes them out, so that its arguments outlive the global.
inline constinit MainThreadGlobal<NSIndexPath> pendingSelectionIndexPath;
inline constinit MainThreadGlobal<UIGestureRecognizer> pendingLockToggleRecognizer;
inline constinit MainThreadGlobal<PUAlbumListCellContentView> pendingDeleteContentView;
inline constinit MainThreadGlobal<NSObject> pendingDeleteAction;

// A delete on its way to the end of editing: the album, and its photos that are in no other album.
inline constinit MainThreadGlobal<NSString> pendingDeleteAlbumTitle;
inline constinit MainThreadGlobal<NSMutableArray> pendingDeleteOrphanAssets;
// All of its photos, for a last look at what became of them.
inline constinit MainThreadGlobal<NSMutableArray> pendingDeletePhotos;
// Editing has ended once and the album was still there.
inline constinit bool pendingDeleteOutlivedEditing = false;

// Kept for later use; nothing reads them yet.
inline constinit WeakGlobal<PUAlbumListViewController> albumListController;
inline constinit MainThreadGlobal<NSMutableDictionary> lockedAlbumPaths;

// Reloads the list once more after `delay` seconds.
inline void reloadContentViewAfter(NSTimeInterval delay, PUAlbumListViewController list) {
    NSTimer::sendOnce(delay, list, selector<"reloadContentView">());
}

} // namespace rollkeeper::albumList
