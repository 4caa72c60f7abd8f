#include "photolibrary/samples.h"

#include <cstdio>

namespace simulator {

namespace {

constexpr double firstOfJuly2016 = 489'060'000; // at 10:00 UTC
constexpr double day = 86'400;

/// A plain generator of numbers whose results are the same everywhere (splitmix64).
class Numbers {
  public:
    std::uint64_t next() {
        std::uint64_t value = m_state += 0x9E3779B97F4A7C15;
        value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
        value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
        return value ^ (value >> 31);
    }
    bool percent(unsigned chance) { return next() % 100 < chance; }

  private:
    std::uint64_t m_state = 0;
};

std::string sampleIdentifier(char group, std::size_t number, const char* suffix) {
    char text[64];
    std::snprintf(text, sizeof text, "5A3B1E00-%c000-4000-8000-%012zX%s", group, number, suffix);
    return text;
}

std::string assetIdentifier(std::size_t number) { return sampleIdentifier('A', number, "/L0/001"); }
std::string albumIdentifier(std::size_t number) { return sampleIdentifier('B', number, "/L0/040"); }
std::string folderIdentifier(std::size_t number) { return sampleIdentifier('F', number, "/L0/020"); }

void addCollection(Change& change, std::string identifier, CollectionKind kind,
                   std::optional<std::string> title, std::optional<std::string> folder = std::nullopt) {
    Collection collection;
    collection.identifier = std::move(identifier);
    collection.kind = kind;
    collection.title = std::move(title);
    if (kind == CollectionKind::folder) collection.subtype = collectionSubtype::regularFolder;
    change.add(Change::AddCollection{std::move(collection), std::move(folder)});
}

/// What kinds of asset a large sample has, and how many in a hundred.
struct Variety {
    unsigned percent;
    MediaType mediaType;
    std::int64_t mediaSubtypes;
    std::int64_t traits;
};

constexpr Variety varieties[] = {
    {5, MediaType::image, mediaSubtype::screenshot, 0},
    {3, MediaType::image, mediaSubtype::livePhoto, trait::selfPortrait},
    {1, MediaType::image, mediaSubtype::panorama, trait::located},
    {1, MediaType::image, mediaSubtype::depthEffect, 0},
    {1, MediaType::image, 0, trait::burst},
    {1, MediaType::image, 0, trait::animated},
    {1, MediaType::image, mediaSubtype::livePhoto, trait::longExposure},
    {2, MediaType::video, 0, trait::located},
    {1, MediaType::video, mediaSubtype::highFrameRateVideo, 0},
    {1, MediaType::video, mediaSubtype::timelapseVideo, 0},
};

const Variety* varietyOf(std::uint64_t number) {
    auto rest = static_cast<unsigned>(number % 100);
    for (const Variety& variety : varieties) {
        if (rest < variety.percent) return &variety;
        rest -= variety.percent;
    }
    return nullptr;
}

Asset sampleAsset(std::size_t number, Numbers& numbers) {
    Asset asset;
    asset.identifier = assetIdentifier(number);
    asset.created = firstOfJuly2016 + static_cast<double>(number) * 600;
    asset.seed = static_cast<std::int64_t>(number);
    if (const Variety* variety = varietyOf(numbers.next())) {
        asset.mediaType = variety->mediaType;
        asset.mediaSubtypes = variety->mediaSubtypes;
        asset.traits = variety->traits;
    }
    if (asset.mediaType == MediaType::video) asset.duration = static_cast<double>(1 + numbers.next() % 300);
    asset.favorite = numbers.percent(5);
    asset.hidden = numbers.percent(3);
    asset.trashed = numbers.percent(1);
    return asset;
}

std::optional<std::string> sampleTitle(std::size_t number) {
    std::string counted = "Album " + std::to_string(number);
    switch (number % 100) {
    case 10:
        return "Repeated";
    case 20:
        return "\"Quoted\" " + counted;
    case 30:
        return "It's " + counted;
    case 40:
        return "\xF0\x9F\x8C\xB4 " + counted; // a palm tree
    case 50:
        return std::nullopt;
    default:
        return counted;
    }
}

} // namespace

void addSmallSample(PhotoLibrary& library) {
    Asset assets[10];
    for (std::size_t index = 0; index < std::size(assets); ++index) {
        assets[index].identifier = assetIdentifier(index);
        assets[index].created = firstOfJuly2016 + static_cast<double>(index) * day;
        assets[index].seed = static_cast<std::int64_t>(index);
    }
    assets[3].favorite = true;
    assets[7].mediaType = MediaType::video;
    assets[7].duration = 12;
    assets[8].mediaSubtypes = mediaSubtype::screenshot;
    assets[9].mediaSubtypes = mediaSubtype::livePhoto;
    assets[9].traits = trait::selfPortrait;

    const struct {
        const char* title;
        std::vector<std::size_t> members;
    } albums[] = {{"Holidays", {0, 1, 2}}, {"Family", {2, 3, 4, 5}}, {"Work", {6}}, {"Pets", {}}};

    Change change;
    for (const Asset& asset : assets)
        change.addAsset(asset);
    for (std::size_t index = 0; index < std::size(albums); ++index) {
        addCollection(change, albumIdentifier(index), CollectionKind::album, albums[index].title);
        Identifiers members;
        for (const std::size_t member : albums[index].members)
            members.push_back(assetIdentifier(member));
        change.add(Change::AddMembers{albumIdentifier(index), members, std::nullopt});
    }
    library.apply(change);
}

void addSample(PhotoLibrary& library, SampleSize size) {
    constexpr std::size_t albumsPerFolder = 25;
    Numbers numbers;
    Change change;
    for (std::size_t number = 0; number < size.photos; ++number)
        change.addAsset(sampleAsset(number, numbers));
    const std::size_t albumsInFolders = size.albums / 10;
    for (std::size_t folder = 0; folder * albumsPerFolder < albumsInFolders; ++folder)
        addCollection(change, folderIdentifier(folder), CollectionKind::folder,
                      "Folder " + std::to_string(folder));
    for (std::size_t number = 0; number < size.albums; ++number) {
        std::optional<std::string> folder;
        if (number < albumsInFolders) folder = folderIdentifier(number / albumsPerFolder);
        addCollection(change, albumIdentifier(number), CollectionKind::album, sampleTitle(number), folder);
        Identifiers members;
        for (std::size_t photo = number; photo < size.photos; photo += size.albums)
            members.push_back(assetIdentifier(photo));
        change.add(Change::AddMembers{albumIdentifier(number), std::move(members), std::nullopt});
    }
    library.apply(change);
}

} // namespace simulator
