// Putting the newest photo into an album. Any thread with Photos; nothing waits for the library's changes.
#pragma once

#include "platform/photos.h"

namespace rollkeeper {

enum class AfterCreation : bool { nothing, addNewestPhoto };

// Creates a user album. A failure is not reported, and then nothing follows.
void createAlbum(NSString title, AfterCreation after);

// Adds the newest photo to the first album of that title, which is created if there is none.
void addNewestPhotoToAlbum(NSString title);

// Hides the newest photo, which takes it out of the Camera Roll.
void hideNewestPhoto();

} // namespace rollkeeper
