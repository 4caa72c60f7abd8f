// Which albums the user switched off: `albumVisibility`, from preference key to boolean number.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper::settings {

// The preference key of the album titled `title`; nil for a nil title.
NSString albumVisibilityKey(NSString title);

// Whether the user switched the album titled `title` off. Any thread.
bool isAlbumSwitchedOff(NSString title);

// Whether a preference key tells of an album: it holds "albumName" anywhere.
bool isAlbumKey(NSObject key);

// Adds the entries to those known. What is known stays for the life of the process, also when its key has
// left the preference file. Main thread.
void mergeAlbumVisibility(NSDictionary entries);

} // namespace rollkeeper::settings
