// What lies on a device, as the page shows it.
#pragma once

#include "device/device.h"
#include "photolibrary/library.h"

#include <nlohmann/json.hpp>

namespace simulator::page {

// [{"title": "Camera Roll", "photos": [{"id", "hidden", "video"}]}, albums in the user's order...]
nlohmann::json photosOf(PhotoLibrary& library);

// The state files and preferences, [{"path", "text"}]: property lists as JSON, other files as they are.
nlohmann::json filesOf(const Device& device);

// A small PNG of the photo; nothing for one that is not in the library.
std::optional<std::string> thumbnailOf(PhotoLibrary& library, const std::string& identifier);

} // namespace simulator::page
