// Reads the preference file into the settings.
#pragma once

namespace rollkeeper::settings {

// Sets every setting from the preference file, with its default where the key is missing, the value has
// another type, or the file cannot be read. Runs at load and, on the main thread, after each reload
// notification.
void load();

// Calls load() again whenever the settings pane posts its notification.
void observeReloads();

} // namespace rollkeeper::settings
