#include "photolibrary/samples.h"

#include <random>

namespace simulator {

namespace {

constexpr double firstOfJuly2016 = 489'060'000; // at 10:00 UTC
constexpr double day = 86'400;

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
    assets[3].favorite = true;
    assets[7].mediaType = MediaType::video;
    assets[8].mediaSubtypes = mediaSubtype::screenshot;
    assets[9].mediaSubtypes = mediaSubtype::livePhoto;
    assets[9].traits = trait::selfPortrait;

    const struct {
        const char* title;
        std::size_t first;
        std::size_t end;
    } albums[] = {{"Holidays", 0, 3}, {"Family", 2, 6}, {"Work", 6, 7}, {"Pets", 0, 0}};

    Change change;
    Identifiers added;
    for (Asset& asset : assets) {
        asset.created = firstOfJuly2016 + static_cast<double>(added.size()) * day;
        asset.seed = static_cast<std::int64_t>(added.size());
        added.push_back(change.addAsset(asset));
    }
    for (const auto& [title, first, end] : albums)
        change.add(Change::AddMembers{change.addAlbum(title), {&added[first], &added[end]}});
    library.apply(change);
}

void addSample(PhotoLibrary& library, SampleSize size) {
    constexpr std::size_t albumsPerFolder = 25;
    std::mt19937 random; // its numbers are the same everywhere
    const auto percent = [&](unsigned chance) { return random() % 100 < chance; };
    Change change;
    std::vector<Identifiers> members(size.albums);
    for (std::size_t number = 0; number < size.photos; ++number)
        members[number % size.albums].push_back(
            change.addAsset({.created = firstOfJuly2016 + static_cast<double>(number) * 600,
                             .hidden = percent(3),
                             .favorite = percent(5),
                             .trashed = percent(1),
                             .seed = static_cast<std::int64_t>(number)}));
    std::optional<std::string> folder;
    for (std::size_t number = 0; number < size.albums; ++number) {
        if (number >= size.albums / 10)
            folder = std::nullopt;
        else if (number % albumsPerFolder == 0)
            folder = change.addFolder("Folder " + std::to_string(number / albumsPerFolder));
        change.add(Change::AddMembers{change.addAlbum(sampleTitle(number), folder), members[number]});
    }
    library.apply(change);
}

} // namespace simulator
