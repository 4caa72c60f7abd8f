// The album that the Camera puts new photos into.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper::camera {

// The title, or "Camera Roll" for none. Any thread: captures are moved on a thread of the capture engine.
NSString selectedAlbum();

// Main thread.
void setSelectedAlbum(NSString title);

// Has the choice written, so that the Camera can start with it the next time. Whether it does is a setting.
void persistSelectedAlbum();

// At load: the stored album if the user wants it remembered and it still exists, else none.
void chooseInitialAlbum();

} // namespace rollkeeper::camera
