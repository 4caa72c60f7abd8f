// Measures of the album list's cells, shared by the screens that set and use them. Main thread.
#pragma once

#include "objc/global.h"
#include "platform/uikit.h"

#include <cstdint>

namespace rollkeeper {

// The side of an album's thumbnail in points; both hold the same value.
inline constinit std::int32_t albumCellWidth = 0;
inline constinit std::int32_t albumCellHeight = 0;

inline void setAlbumCellSide(double points) {
    albumCellWidth = static_cast<std::int32_t>(points);
    albumCellHeight = albumCellWidth;
}

// While the album list has Photos fill one of its cells, which it decorates itself afterwards.
inline constinit bool albumListFillsCell = false;

// The font of a cell's two lines: 15 points until the first cell is laid out.
inline constinit MainThreadGlobal<UIFont> albumCellFont;

} // namespace rollkeeper
