// Which albums of the Albums screen are locked. The list is read anew each time, since no album list may have
// been shown yet. Main thread.
#pragma once

#include "platform/photos_ui.h"

namespace rollkeeper::albumsScreen {

// The title itself when an album of that title is locked, else nil.
NSString ifLocked(NSString title);

// The collection's title when it is locked, by that title or, for a smart album, by its fixed label; else
// nil.
NSString lockedTitleOf(PHCollection collection);

} // namespace rollkeeper::albumsScreen
