// The sheet in which the user picks the album for the next photo, and the alert that creates a new one. Main
// thread.
#pragma once

#include "platform/uikit.h"

#include <cstdint>

namespace rollkeeper {

enum class AlbumChooser : std::uint8_t { camera, shareSheet };

// What differs between the two choosers. `owner` is the object that the chooser was asked of.
struct AlbumChooserPolicy {
    void (*picked)(NSObject owner, NSString title);
    void (*created)(NSObject owner, NSString title);
    UIViewController (*presenter)(NSObject owner);
    UIView (*anchor)(NSObject owner); // what the sheet points at on a pad
};
extern const AlbumChooserPolicy cameraChooserPolicy;
extern const AlbumChooserPolicy shareSheetChooserPolicy;

void presentAlbumChooser(AlbumChooser chooser, NSObject owner);
void presentNewAlbumAlert(AlbumChooser chooser, NSObject owner);

} // namespace rollkeeper
