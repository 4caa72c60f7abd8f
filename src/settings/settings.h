// The user's choices: one process-wide value for each preference key, read afresh at each use.
//
// The loader (settings/loader.h) writes them, at load and after each reload notification; everything else
// only reads, from any thread and without a lock. During a reload a reader may see old and new values mixed.
#pragma once

#include "platform/foundation.h"

#include <cstdint>

namespace rollkeeper {

template <typename Value> class Setting {
  public:
    constexpr Setting() = default;
    constexpr explicit Setting(Value initial) : value_(initial) {}

    operator Value() const { return __atomic_load_n(&value_, __ATOMIC_RELAXED); }
    void operator=(Value value) { __atomic_store_n(&value_, value, __ATOMIC_RELAXED); }

  private:
    Value value_ = Value();
};

namespace settings {

// Master switch.
inline constinit Setting<bool> enabled;

// Stock albums that are listed.
inline constinit Setting<bool> showDeleted;
inline constinit Setting<bool> showFavourites;
inline constinit Setting<bool> showPlaces;
inline constinit Setting<bool> showPeople;
inline constinit Setting<bool> showVideos;
inline constinit Setting<bool> showSelfies;
inline constinit Setting<bool> showPanoramas;
inline constinit Setting<bool> showTimelapse;
inline constinit Setting<bool> showSlowmo;
inline constinit Setting<bool> showBursts;
inline constinit Setting<bool> showScreenshots;
inline constinit Setting<bool> showHidden;
inline constinit Setting<bool> showPortrait;
inline constinit Setting<bool> showAnimated;
inline constinit Setting<bool> showLive;

// Tabs of the Photos library.
inline constinit Setting<bool> showTabMoments;
inline constinit Setting<bool> showTabMemories;
inline constinit Setting<bool> showTabShared;
inline constinit Setting<bool> showTabAlbums;

// The album list's cells.
inline constinit Setting<bool> fixedLayoutFlag; // on from the first load; it has no key
inline constinit Setting<bool> layoutShowTitle;
inline constinit Setting<bool> layoutShowSubtitle;
inline constinit Setting<std::int32_t> albumFontSize{14}; // points

// How a locked album is drawn: see common/lock_overlay.h.
inline constinit Setting<std::int32_t> lockedAlbumPreview;
// How a locked album is opened: see PassOption.
inline constinit Setting<std::int32_t> passOption;

inline constinit Setting<bool> hideLockedFromApps;
inline constinit Setting<bool> removeSearch;
inline constinit Setting<bool> skipDelete;
inline constinit Setting<bool> showLiveBadge;
inline constinit Setting<bool> increaseZoom;
inline constinit Setting<bool> enableCameraPicker;
inline constinit Setting<bool> rememberDefault;
inline constinit Setting<bool> returnToMainLocked;
inline constinit Setting<bool> returnToMainDefault;
inline constinit Setting<bool> pickerMovePhotos;
inline constinit Setting<bool> saveActivityEnabled;
inline constinit Setting<bool> saveActivityMove;

// Values of passOption; any other value opens a locked album without asking, as `never` does.
namespace ask {
inline constexpr std::int32_t touchId = 0;
inline constexpr std::int32_t password = 1;
inline constexpr std::int32_t never = 2;
} // namespace ask

} // namespace settings
} // namespace rollkeeper
