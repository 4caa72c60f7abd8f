// The titles of the locked albums: the file that every process reads and the copy in memory.
//
// Albums are recognised by title alone, so two albums of one title are locked together.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper::lockedAlbums {

// Reads the list afresh and makes it the copy in memory, `lockedAlbumTitles`. Nil, which contains nothing,
// when the file is missing or holds no array. The result is the caller's own to filter or change. Any thread.
Owner<NSMutableArray> reread();

// The same, with an empty list instead of nil.
Owner<NSMutableArray> rereadOrEmpty();

// Whether the copy in memory holds the title. Main thread.
bool inMemoryContains(NSString title);

// Makes the list the copy in memory and has it written to the file. Without a list nothing is written. Does
// nothing where the process may not see the file: what it could not read it would replace.
void save(Owner<NSMutableArray> titles);

} // namespace rollkeeper::lockedAlbums
