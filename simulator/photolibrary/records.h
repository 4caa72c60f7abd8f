// What a photo library holds, as plain values.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace simulator {

enum class MediaType : std::int64_t { image = 1, video = 2 };

/// Bits of Asset::mediaSubtypes, with the platform's values.
namespace mediaSubtype {
inline constexpr std::int64_t screenshot = 1 << 2;
inline constexpr std::int64_t livePhoto = 1 << 3;
} // namespace mediaSubtype

/// Bits of Asset::traits: what smart albums know of an asset beyond its public properties.
namespace trait {
inline constexpr std::int64_t selfPortrait = 1 << 0;
} // namespace trait

/// A photo or video. Its picture is made from the seed unless one is stored.
struct Asset {
    // Written out so that designated initialisers may leave it out.
    std::string identifier = {}; // NOLINT(readability-redundant-member-init): empty, the library gives one
    MediaType mediaType = MediaType::image;
    std::int64_t mediaSubtypes = 0;
    std::int64_t traits = 0;
    std::optional<double> created = std::nullopt; ///< seconds since 1 January 2001, UTC
    bool hidden = false;
    bool favorite = false;
    bool trashed = false;
    std::int64_t width = 4032; ///< pixels
    std::int64_t height = 3024;
    std::int64_t seed = 0;
};

enum class CollectionKind : std::int64_t { album = 1, smartAlbum = 2, moment = 3, folder = 4 };

/// Subtypes of collections, with the platform's values; those of smart albums stand in their table.
namespace collectionSubtype {
inline constexpr std::int64_t regularAlbum = 2;
inline constexpr std::int64_t regularFolder = 100;
inline constexpr std::int64_t trashBin = 1'000'000'201;
inline constexpr std::int64_t any = std::numeric_limits<std::int64_t>::max();
} // namespace collectionSubtype

/// An album, smart album, moment or folder. Albums and folders are stored, the others computed.
struct Collection {
    std::int64_t row = 0;        ///< of a moment its day
    std::string identifier = {}; // NOLINT(readability-redundant-member-init): may be left out
    CollectionKind kind = CollectionKind::album;
    std::int64_t subtype = collectionSubtype::regularAlbum;
    std::optional<std::string> title = std::nullopt;
};

using Assets = std::vector<Asset>;
using Collections = std::vector<Collection>;
using Identifiers = std::vector<std::string>;

} // namespace simulator
