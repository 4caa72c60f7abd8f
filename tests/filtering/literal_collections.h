// What a collection list answers, found the plain way: every regular album and its photos are fetched once
// for every album in the list, and arrays are searched. Quadratic, and obvious; the library must always
// agree.
#pragma once

#import "Photos/Photos.h"

namespace simulator::test {

struct LiteralWorld {
    NSString* bundleIdentifier;
    double coreFoundationVersion;
    NSDictionary* settings;   // switches by key; a missing one is on, but "showHidden" off
    NSDictionary* visibility; // albums' switches by key
};

struct StockSmartAlbum {
    NSInteger subtype;
    NSString* key; // of its switch
    NSString* label;
};

// The smart albums that can be switched off and locked.
inline const StockSmartAlbum stockSmartAlbums[] = {
    {201, @"showPanoramas", @"Panoramas"},   {202, @"showVideos", @"Videos"},
    {203, @"showFavourites", @"Favourites"}, {204, @"showTimelapse", @"Timelapse"},
    {207, @"showBursts", @"Bursts"},         {208, @"showSlowmo", @"Slowmo"},
    {210, @"showSelfies", @"Selfies"},       {211, @"showScreenshots", @"Screenshots"},
    {212, @"showPortrait", @"Portrait"},     {213, @"showLive", @"Live Photos"},
    {215, @"showAnimated", @"Animated"},     {1000000203, @"showPlaces", @"Places"},
};

// `previous` is what the list answers without the library; asked twice. Reads the locked list of the device.
NSArray* literalCollections(NSArray* (^previous)(), const LiteralWorld& world);

} // namespace simulator::test
