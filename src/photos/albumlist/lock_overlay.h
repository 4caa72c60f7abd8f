// What is drawn over the thumbnail of a locked album.
#pragma once

#include "platform/photos_ui.h"

namespace rollkeeper::albumList {

// Builds, resizes or removes the overlay of one cell, by the setting "lockedAlbumPreview" and the thumbnail's
// side.
void updateLockOverlay(PUAlbumListCellContentView contentView, bool locked);

} // namespace rollkeeper::albumList
