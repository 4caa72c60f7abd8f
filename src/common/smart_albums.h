// The smart albums that a setting switches, and the fixed English labels under which they can be locked.
#pragma once

#include "platform/photos.h"
#include "settings/settings.h"

namespace rollkeeper {

struct SmartAlbumSwitch {
    PHAssetCollectionSubtype subtype;
    const Setting<bool>& shown;
    NSString (*label)();
};

// Nil for a smart album without a switch.
const SmartAlbumSwitch* switchOf(PHAssetCollectionSubtype subtype);

} // namespace rollkeeper
