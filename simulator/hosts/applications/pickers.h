/// What a user can do in applications that are little more than a photo picker.
#pragma once

#import "hosts/applications/common/AlbumPickerViewController.h"

namespace simulator::pickers {

/// Lists what the picker on the screen shows, see describePicker(). Throws std::runtime_error when there is
/// none.
nlohmann::json list();

/// {"do": "listPicker"}.
void addVerbs();

} // namespace simulator::pickers
