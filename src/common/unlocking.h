// Asking for authorisation before a locked album is opened or changed.
//
// All flows, the album list's, the album cell's and the Albums screen's, share this mechanism. What differs
// between them, on purpose, is the table of policies in unlocking.cpp. An authorisation is for one action:
// the object that asked receives `unlockAuthorised:` with the purpose that it named, and carries the
// interrupted action out. Main thread.
#pragma once

#include "platform/uikit.h"

#include <cstdint>

namespace rollkeeper {

enum class UnlockFlow : std::uint8_t { albumList, albumCell, albumsScreen };

// Set by a successful unlock; the action that is carried out then sees it, skips the lock test and clears it.
inline constinit bool unlockGranted = false;

// A locked album was opened after authorisation and no other album has been selected since.
inline constinit bool lockedAlbumOpen = false;

// Asks as the setting "passOption" says. `asker` answers `requestPassword:` and `unlockAuthorised:`.
void unlock(UnlockFlow flow, NSObject asker, int purpose, NSString albumTitle);

// Shows the password alert.
void requestPassword(UnlockFlow flow, NSObject asker, int purpose, UIViewController presenter);

} // namespace rollkeeper
