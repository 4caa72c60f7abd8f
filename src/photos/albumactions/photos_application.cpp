#include "common/unlocking.h"
#include "objc/replacement.h"
#include "photos/albumactions/hooks.h"
#include "settings/settings.h"

namespace rollkeeper::photosFrame {

namespace {

// A method of no known release and an instance variable of all: asked for in that order, taken as missing
// otherwise.
PUTabbedLibraryViewController tabbedLibrary(PhotosApplication application) {
    if (application.respondsTo<"_tabbedLibraryViewController">())
        return application.tabbedLibraryViewController();
    const Ivar variable =
        class_getInstanceVariable(object_getClass(application.pointer), "_tabbedLibraryViewController");
    if (!variable) return PUTabbedLibraryViewController();
    return cast<PUTabbedLibraryViewController>(Object{object_getIvar(application.pointer, variable)});
}

} // namespace

void didEnterBackground(PhotosApplication self, SEL command, UIApplication application) {
    if (settings::enabled) self.returnToMainView();
    original<didEnterBackground>(self, command, application);
}

// The flag stays set: selecting the next album clears it.
void returnToMainView(PhotosApplication self, SEL) {
    if (!settings::returnToMainDefault && !(settings::returnToMainLocked && lockedAlbumOpen)) return;
    tabbedLibrary(self).selectedNavigationController().popToRootViewController(true);
}

} // namespace rollkeeper::photosFrame
