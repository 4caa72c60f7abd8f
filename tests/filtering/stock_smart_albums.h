// The smart albums that can be switched off and locked.
#pragma once

#import <Foundation/Foundation.h>

namespace simulator::test {

struct StockSmartAlbum {
    NSInteger subtype;
    NSString* key; // of its switch
    NSString* label;
};

// clang-format off
inline const StockSmartAlbum stockSmartAlbums[] = {
    {201, @"showPanoramas", @"Panoramas"},
    {202, @"showVideos", @"Videos"},
    {203, @"showFavourites", @"Favourites"},
    {204, @"showTimelapse", @"Timelapse"},
    {207, @"showBursts", @"Bursts"},
    {208, @"showSlowmo", @"Slowmo"},
    {210, @"showSelfies", @"Selfies"},
    {211, @"showScreenshots", @"Screenshots"},
    {212, @"showPortrait", @"Portrait"},
    {213, @"showLive", @"Live Photos"},
    {215, @"showAnimated", @"Animated"},
    {1'000'000'203, @"showPlaces", @"Places"},
};
// clang-format on

// Those that can be switched off, and not locked.
inline constexpr NSInteger hiddenPhotosSubtype = 205;
inline constexpr NSInteger trashBinSubtype = 1'000'000'201;

} // namespace simulator::test
