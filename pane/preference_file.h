// Reads and writes the preference file itself, and tells all processes of a change. Main thread.
#pragma once

#include "preferences.h"

namespace rollkeeper::pane {

// The value of the row's key as the library understands it, or the row's default.
NSNumber storedValue(PSSpecifier specifier);

// Stores the value under the row's key and, once the file is in place, posts the notification. False when the
// file could not be written; then nothing has changed.
bool store(NSObject value, PSSpecifier specifier);

} // namespace rollkeeper::pane
