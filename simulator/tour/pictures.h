// The pictures of the documentation: a few screens of the library at work, the same bytes each time.
#pragma once

#include "tour/stage.h"

namespace simulator::tour {

// Draws them into the folder as SVG files.
void takePictures(const Programs& programs, const std::filesystem::path& folder);

} // namespace simulator::tour
