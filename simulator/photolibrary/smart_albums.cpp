#include "photolibrary/smart_albums.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <limits>
#include <string>

namespace simulator {

namespace {

constexpr const char* newestThirtyDays = "created >= (SELECT max(created) FROM asset) - 30 * 86400";

constexpr SmartAlbum table[] = {
    {201, "Panoramas", "mediaSubtypes & 0x1", 800},
    {202, "Videos", "mediaType = 2", 800},
    {203, "Favorites", "favorite", 800},
    {204, "Time-lapse", "mediaSubtypes & 0x40000", 800},
    {205, "Hidden", "hidden", 800, false},
    {206, "Recently Added", newestThirtyDays, 800},
    {207, "Bursts", "traits & 0x2", 800},
    {208, "Slo-mo", "mediaSubtypes & 0x20000", 800},
    {209, "Camera Roll", "1", 800},
    {210, "Selfies", "traits & 0x1", 900},
    {211, "Screenshots", "mediaSubtypes & 0x4", 900},
    {212, "Portrait", "mediaSubtypes & 0x10", 1002},
    {213, "Live Photos", "mediaSubtypes & 0x8", 1003},
    {214, "Animated", "traits & 0x4", 1100},
    {215, "Long Exposure", "traits & 0x8", 1100},
    {1'000'000'203, "Places", "traits & 0x10", 800},
    {collectionSubtype::trashBin, "Recently Deleted", "trashed", 800, false, false},
};

std::string identifierOf(const SmartAlbum& album) {
    char text[64];
    std::snprintf(text, sizeof text, "00000000-0000-4000-8000-%012" PRId64 "/L0/040", album.subtype);
    return text;
}

/// 1002 for 10.2; past every release for the one that has everything.
int numberOf(Release release) {
    int major = 0;
    int minor = 0;
    const std::string name(releaseName(release));
    if (std::sscanf(name.c_str(), "%d.%d", &major, &minor) != 2) return std::numeric_limits<int>::max();
    return major * 100 + minor;
}

} // namespace

bool SmartAlbum::existsIn(Release release) const { return since <= numberOf(release); }

std::span<const SmartAlbum> smartAlbums() { return table; }

const SmartAlbum* smartAlbumOfSubtype(std::int64_t subtype) {
    const auto* found = std::ranges::find(table, subtype, &SmartAlbum::subtype);
    return found == std::end(table) ? nullptr : found;
}

const SmartAlbum* smartAlbumWithIdentifier(std::string_view identifier) {
    const auto* found = std::ranges::find_if(
        table, [&](const SmartAlbum& album) { return identifierOf(album) == identifier; });
    return found == std::end(table) ? nullptr : found;
}

Collection collectionOf(const SmartAlbum& album) {
    Collection collection;
    collection.row = album.subtype;
    collection.identifier = identifierOf(album);
    collection.kind = CollectionKind::smartAlbum;
    collection.subtype = album.subtype;
    collection.title = album.title;
    return collection;
}

} // namespace simulator
