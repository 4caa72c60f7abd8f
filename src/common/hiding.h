// Moving photos out of the Camera Roll and back: a moved photo is a hidden one, still in its albums.
#pragma once

#include "platform/photos_ui.h"

namespace rollkeeper {

enum class Photos : bool { shown = false, hidden = true };

// Whether this process can hide assets at all: PhotosUI, which this loads where it is not yet, may be missing
// or of a release that cannot.
bool canHideAssets();

// Starts to hide or show the assets, on a queue of the framework, and returns. The completion, void(), runs
// there and may be nil. Nil assets change nothing; failures are not reported.
void apply(Photos state, NSArray assets, Block completion);

// Shows, a second from now, those of the photos that are then hidden and in no album: nobody would find them
// any more. For photos that are about to leave an album, beside showing them at once, which may be refused.
// Main thread.
void showStrandedLater(Owner<NSMutableArray> photos);

// The photos of a selection, which may be any container and may change later, as an array of our own.
Owner<NSMutableArray> photosIn(NSObject selection);

} // namespace rollkeeper
