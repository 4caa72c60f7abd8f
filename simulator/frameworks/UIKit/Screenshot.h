// The screen as a picture that a person can look at: an SVG document, laid out first, one unit to a point.
#pragma once

#include <string>

namespace simulator {

// Main thread. An empty screen when there is no key window.
std::string screenshotAsSvg();

} // namespace simulator
