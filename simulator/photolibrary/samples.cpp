#include "photolibrary/samples.h"

namespace simulator {

namespace {

constexpr double firstOfJuly2016 = 489'060'000; // at 10:00 UTC
constexpr double day = 86'400;

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

} // namespace simulator
