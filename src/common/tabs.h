// The tabs of the Photos library that the user left on.
#pragma once

#include "settings/settings.h"

namespace rollkeeper {

inline bool hasOneTab() {
    return settings::showTabMoments + settings::showTabMemories + settings::showTabShared +
               settings::showTabAlbums ==
           1;
}

} // namespace rollkeeper
