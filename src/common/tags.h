// The tags by which the library finds its own views again.
#pragma once

#include "objc/geometry.h"

namespace rollkeeper::tag {

inline constexpr NSInteger cameraAlbumImage = 77;
inline constexpr NSInteger cameraAlbumLabel = 78;
inline constexpr NSInteger lockOverlay = 200;
inline constexpr NSInteger statusBanner = 204;
inline constexpr NSInteger moveButton = 213;
inline constexpr NSInteger lockButton = 214;

} // namespace rollkeeper::tag
