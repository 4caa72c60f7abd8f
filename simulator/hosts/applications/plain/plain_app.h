/// What a user can do in the plain application. Main thread; the running application must be it.
#pragma once

#import "hosts/applications/plain/PlainApplication.h"

#include <nlohmann/json.hpp>

#include <string>

namespace simulator::plain {

PlainViewController* screen();

/// Opens the share sheet with the picture.
UIActivityViewController* share();

/// Opens the share sheet and saves the picture into the photo library; waits until it is there. Throws
/// std::runtime_error when it does not arrive.
void saveImage();

/// Opens the photo picker and lists what it shows, see describePicker().
nlohmann::json listPicker();

/// {"do": "share"}, {"do": "saveImage"}, {"do": "listPicker"}.
void addVerbs();

} // namespace simulator::plain
