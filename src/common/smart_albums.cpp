#include "common/smart_albums.h"

namespace rollkeeper {

namespace {

using Subtype = PHAssetCollectionSubtype;

// "showAnimated" goes with the long exposures, while the animated album itself has no switch: kept on
// purpose.
constexpr SmartAlbumSwitch smartAlbumSwitches[] = {
    {Subtype::panoramas, settings::showPanoramas, [] { return "Panoramas"_ns; }},
    {Subtype::videos, settings::showVideos, [] { return "Videos"_ns; }},
    {Subtype::favorites, settings::showFavourites, [] { return "Favourites"_ns; }},
    {Subtype::timelapses, settings::showTimelapse, [] { return "Timelapse"_ns; }},
    {Subtype::bursts, settings::showBursts, [] { return "Bursts"_ns; }},
    {Subtype::slomoVideos, settings::showSlowmo, [] { return "Slowmo"_ns; }},
    {Subtype::selfPortraits, settings::showSelfies, [] { return "Selfies"_ns; }},
    {Subtype::screenshots, settings::showScreenshots, [] { return "Screenshots"_ns; }},
    {Subtype::depthEffect, settings::showPortrait, [] { return "Portrait"_ns; }},
    {Subtype::livePhotos, settings::showLive, [] { return "Live Photos"_ns; }},
    {Subtype::longExposures, settings::showAnimated, [] { return "Animated"_ns; }},
    {Subtype::places, settings::showPlaces, [] { return "Places"_ns; }},
};

} // namespace

const SmartAlbumSwitch* switchOf(PHAssetCollectionSubtype subtype) {
    for (const SmartAlbumSwitch& candidate : smartAlbumSwitches)
        if (candidate.subtype == subtype) return &candidate;
    return nullptr;
}

} // namespace rollkeeper
