// The colours of the system's own controls.
#pragma once

#include "UIKit/model/SvgCanvas.h"

namespace simulator::palette {

inline constexpr SvgColor white = {1, 1, 1, 1};
inline constexpr SvgColor black = {0, 0, 0, 1};
inline constexpr SvgColor gray = {0.55, 0.55, 0.57, 1};
inline constexpr SvgColor lightGray = {0.78, 0.78, 0.8, 1};
inline constexpr SvgColor blue = {0, 0.48, 1, 1};
inline constexpr SvgColor red = {1, 0.23, 0.19, 1};
inline constexpr SvgColor green = {0.3, 0.85, 0.39, 1};
inline constexpr SvgColor bar = {0.97, 0.97, 0.97, 1};
inline constexpr SvgColor separator = {0.78, 0.78, 0.8, 1};
inline constexpr SvgColor dimming = {0, 0, 0, 0.4};
inline constexpr SvgColor darkBlur = {0.1, 0.1, 0.1, 0.8};

} // namespace simulator::palette
