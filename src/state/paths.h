// Every file that the library reads or writes.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper::path {

inline NSString preferences() { return "/var/mobile/Library/Preferences/com.nrv.rollkeeperprefs.plist"_ns; }

// Relative on purpose: SpringBoard creates the folder from its working directory, the root of the file
// system.
inline NSString stateFolderFromRoot() { return "var/mobile/Library/rollkeeper/"_ns; }

inline NSString stateFolder() { return "/var/mobile/Library/rollkeeper"_ns; }
inline NSString parentOfStateFolder() { return "/var/mobile/Library"_ns; }

// The same file by two names, since "/var" is a link: Camera processes read the one and SpringBoard is sent
// the other. Both are kept exactly.
inline NSString cameraAlbum() { return "/var/mobile/Library/rollkeeper/album.tct"_ns; }
inline NSString cameraAlbumForWriting() { return "/private/var/mobile/Library/rollkeeper/album.tct"_ns; }

inline NSString lockedAlbums() { return "/var/mobile/Library/rollkeeper/lockedAlbums.plist"_ns; }
inline NSString lockedAlbumPaths() { return "/var/mobile/Library/rollkeeper/lockedAlbumsPaths.plist"_ns; }
inline NSString password() { return "/var/mobile/Library/rollkeeper/settings.tct"_ns; }
// No state: what the settings pane has SpringBoard write to see whether it does.
inline NSString probe() { return "/var/mobile/Library/rollkeeper/probe.plist"_ns; }

inline NSString albumImage() { return "/Library/Application Support/rollkeeper/album.png"_ns; }
inline NSString whiteLockImage() { return "/Library/Application Support/rollkeeper/whitelock.png"_ns; }
inline NSString padlockImage() { return "/Library/Application Support/rollkeeper/padlock.png"_ns; }
inline NSString moveImage() { return "/Library/Application Support/rollkeeper/move.png"_ns; }
inline NSString greenLockImage() { return "/Library/Application Support/rollkeeper/greenlock.png"_ns; }

} // namespace rollkeeper::path
