// The content view of the cell at an index path, asked for as each system release can answer.
#pragma once

#include "platform/photos_ui.h"

namespace rollkeeper::albumList {

// `newerThan` is the Core Foundation version above which the newer of the two methods is asked first. Callers
// differ in it by one, on purpose; where the object lacks the chosen method the other one is asked. Nil when
// neither answers.
PUAlbumListCellContentView contentViewAt(PUAlbumListViewController list, NSIndexPath path, double newerThan);

} // namespace rollkeeper::albumList
