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

// The photos of a selection, which may be any container and may change later, as an array of our own.
Owner<NSMutableArray> photosIn(NSObject selection);

} // namespace rollkeeper
