// Reads and writes the preference file itself, and tells all processes of a change. Main thread.
#pragma once

#include "preferences.h"

namespace rollkeeper::pane {

// The value of the row's key as the library understands it, or the row's default.
NSNumber storedValue(PSSpecifier specifier);

// A switch that has no row here.
bool storedSwitch(NSString key, bool fallback);

// Stores the value under the row's key and, once the file is in place, posts the notification. False when the
// file could not be written; then nothing has changed.
bool store(NSObject value, PSSpecifier specifier);

// Stores the default of every setting and shows every album that the file tells of: a key that went would
// leave its album off in applications that run. What else the file holds is kept. False when nothing was
// stored.
bool reset();

} // namespace rollkeeper::pane
