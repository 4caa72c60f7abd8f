#include "state/locked_albums.h"

#include "objc/global.h"
#include "state/paths.h"
#include "state/save_array.h"

namespace rollkeeper::lockedAlbums {

namespace {
constinit ReplacedGlobal<NSMutableArray> lockedAlbumTitles;

// A sandbox that hides the list hides the folders around it as well.
bool canBeSeen() {
    const NSFileManager files = NSFileManager::defaultManager();
    return files.fileExistsAtPath(path::stateFolder()) || files.fileExistsAtPath(path::parentOfStateFolder());
}
} // namespace

Owner<NSMutableArray> reread() {
    Owner<NSMutableArray> titles = NSMutableArray::withContentsOfFile(path::lockedAlbums());
    lockedAlbumTitles.replace(titles);
    return titles;
}

Owner<NSMutableArray> rereadOrEmpty() {
    Owner<NSMutableArray> titles = reread();
    if (titles) return titles;
    titles = make<NSMutableArray>();
    lockedAlbumTitles.replace(titles);
    return titles;
}

bool inMemoryContains(NSString title) { return title && lockedAlbumTitles.get()->containsObject(title); }

void save(Owner<NSMutableArray> titles) {
    if (!canBeSeen()) {
        reread();
        return;
    }
    lockedAlbumTitles.replace(titles);
    saveArray(titles.get(), path::lockedAlbums());
}

} // namespace rollkeeper::lockedAlbums
