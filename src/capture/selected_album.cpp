#include "capture/selected_album.h"

#include "common/albums.h"
#include "objc/global.h"
#include "settings/settings.h"
#include "state/paths.h"
#include "state/save_array.h"

namespace rollkeeper::camera {

namespace {

constinit PublishedGlobal<NSString> chosenAlbum; // nil stands for none, as at the start of every process

// Nil when nothing, or nothing usable, is stored.
NSString storedAlbum(const Owner<NSMutableArray>& stored) {
    return stored->count() > 0 ? ifKindOf<NSString>(stored->objectAtIndex(0)) : NSString();
}

} // namespace

NSString selectedAlbum() {
    const NSString chosen = chosenAlbum.get();
    return chosen ? chosen : cameraRollTitle();
}

void setSelectedAlbum(NSString title) {
    if (!selectedAlbum().isEqualToString(title)) chosenAlbum.publish(share(title));
}

void persistSelectedAlbum() {
    saveArray(NSArray::arrayWithObject(selectedAlbum()), path::cameraAlbumForWriting());
}

void chooseInitialAlbum() {
    const Owner<NSMutableArray> stored = NSMutableArray::withContentsOfFile(path::cameraAlbum());
    const NSString album = storedAlbum(stored);
    const Owner<NSMutableArray> titles = regularAlbumTitles(PHFetchOptions());
    const bool startsWithStored = album && settings::rememberDefault && titles->containsObject(album);
    setSelectedAlbum(startsWithStored ? album : cameraRollTitle());
}

} // namespace rollkeeper::camera
