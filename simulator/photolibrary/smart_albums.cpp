#include "photolibrary/smart_albums.h"

#include <algorithm>
#include <stdexcept>

namespace simulator {

namespace {

constexpr const char* newestThirtyDays = "created >= (SELECT max(created) FROM asset) - 30 * 86400";

constexpr SmartAlbum table[] = {
    {201, "Panoramas", "mediaSubtypes & 0x1", Release::ios8_4},
    {202, "Videos", "mediaType = 2", Release::ios8_4},
    {203, "Favorites", "favorite", Release::ios8_4},
    {204, "Time-lapse", "mediaSubtypes & 0x40000", Release::ios8_4},
    {205, "Hidden", "hidden", Release::ios8_4, false},
    {206, "Recently Added", newestThirtyDays, Release::ios8_4},
    {207, "Bursts", "traits & 0x2", Release::ios8_4},
    {208, "Slo-mo", "mediaSubtypes & 0x20000", Release::ios8_4},
    {209, "Camera Roll", "1", Release::ios8_4},
    {210, "Selfies", "traits & 0x1", Release::ios9_3},
    {211, "Screenshots", "mediaSubtypes & 0x4", Release::ios9_3},
    {212, "Portrait", "mediaSubtypes & 0x10", Release::ios10_2},
    {213, "Live Photos", "mediaSubtypes & 0x8", Release::ios10_3},
    {214, "Animated", "traits & 0x4", Release::ios11_4},
    {215, "Long Exposure", "traits & 0x8", Release::ios11_4},
    {1'000'000'203, "Places", "traits & 0x10", Release::ios8_4},
    {collectionSubtype::trashBin, "Recently Deleted", "trashed", Release::ios8_4, false, false},
};

} // namespace

Collections smartAlbums() {
    Collections albums;
    for (const SmartAlbum& album : table)
        if (album.since <= currentRelease())
            albums.push_back({.identifier = "system " + std::to_string(album.subtype) + "/L0/040",
                              .kind = CollectionKind::smartAlbum,
                              .subtype = album.subtype,
                              .title = album.title});
    return albums;
}

const SmartAlbum& smartAlbumOfSubtype(std::int64_t subtype) {
    const auto* found = std::ranges::find(table, subtype, &SmartAlbum::subtype);
    if (found == std::end(table)) throw std::out_of_range("no smart album of this subtype");
    return *found;
}

} // namespace simulator
