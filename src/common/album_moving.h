// Moving all photos of an album out of the Camera Roll, or back into it, with a banner that tells. Main
// thread.
#pragma once

#include "common/hiding.h"

namespace rollkeeper {

enum class MoveDirection : int { copyToCameraRoll = 0, moveOutOfCameraRoll = 1 };

// Changes the hidden flag of the album's photos; membership and locks stay as they are.
void moveAlbumPhotos(NSString title, MoveDirection direction);

// Adds the two choices and "Cancel" for the album of that title to a sheet.
class Alert;
void addMoveActions(Alert& sheet, NSString title);

// Makes the photos of several albums visible again, or says that there are none.
void returnPhotos(Owner<NSMutableArray> photos);

} // namespace rollkeeper
