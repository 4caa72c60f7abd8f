// Values of an album cell's `editCapabilities` that the library tells apart. Their meaning is Photos' own.
#pragma once

#include "objc/geometry.h"

namespace rollkeeper::editCapabilities {

inline constexpr NSUInteger none = 0;
inline constexpr NSUInteger reorderOnly = 4;
inline constexpr NSUInteger stockAlbum = 5;
inline constexpr NSUInteger userAlbum = 7;

} // namespace rollkeeper::editCapabilities
