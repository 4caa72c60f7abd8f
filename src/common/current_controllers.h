// The latest controller of each kind in Photos, not kept alive: one that has gone reads as not set. Main
// thread.
#pragma once

#include "objc/weak.h"
#include "platform/photos_ui.h"

namespace rollkeeper {

inline constinit WeakGlobal<PUPhotosAlbumViewController> currentAlbumViewController;
inline constinit WeakGlobal<PUOneUpViewController> currentOneUpViewController;
inline constinit WeakGlobal<PUZoomableGridViewController> currentGridViewController;

} // namespace rollkeeper
