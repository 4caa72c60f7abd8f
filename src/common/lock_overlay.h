// What is drawn over the cover of a locked album.
#pragma once

#include "platform/photos_ui.h"

#include <cstdint>

namespace rollkeeper {

// A cover as the screen that shows it measures it.
struct Cover {
    std::int32_t width; // points
    std::int32_t height;
    // Whether what is drawn goes with a later layout of the cover. In the album list only the overlay itself
    // does: there the measures are right from the start.
    bool isLaidOutLater;
};

// Of the album list.
Cover albumListCover();

// Builds, resizes or removes the overlay of one cell, by the setting "lockedAlbumPreview".
void updateLockOverlay(PUAlbumListCellContentView contentView, bool locked, const Cover& cover);

} // namespace rollkeeper
