#include "device/device.h"
#include "photolibrary/library.h"
#include "scenarios/scenarios.h"

#include <nlohmann/json.hpp>

#include <random>
#include <stdexcept>

namespace bench {
namespace {

constexpr const char* lockedAlbums = "/var/mobile/Library/rollkeeper/lockedAlbums.plist";

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

// Photos spread evenly over the albums, some hidden, favourite or in the trash; titles that repeat, that are
// missing, and with quotes and emoji; a tenth of the albums lies in folders. Apart from identifiers it is the
// same every time.
void addAlbums(simulator::PhotoLibrary& library, std::size_t albums) {
    constexpr double firstOfJuly2016 = 489'060'000; // at 10:00 UTC
    constexpr std::size_t albumsPerFolder = 25;
    std::mt19937 random; // its numbers are the same everywhere
    const auto percent = [&](unsigned chance) { return random() % 100 < chance; };
    simulator::Change change;
    std::vector<simulator::Identifiers> members(albums);
    for (std::size_t number = 0; number < albums * photosInAlbum; ++number)
        members[number % albums].push_back(
            change.addAsset({.created = firstOfJuly2016 + static_cast<double>(number) * 600,
                             .hidden = percent(3),
                             .favorite = percent(5),
                             .trashed = percent(1),
                             .seed = static_cast<std::int64_t>(number)}));
    std::optional<std::string> folder;
    for (std::size_t number = 0; number < albums; ++number) {
        if (number >= albums / 10)
            folder = std::nullopt;
        else if (number % albumsPerFolder == 0)
            folder = change.addFolder("Folder " + std::to_string(number / albumsPerFolder));
        change.add(
            simulator::Change::AddMembers{change.addAlbum(sampleTitle(number), folder), members[number]});
    }
    library.apply(change);
}

// Titled albums outside folders, so that the album list shows them.
nlohmann::json titlesToLock(simulator::PhotoLibrary& library, std::size_t wanted) {
    nlohmann::json titles = nlohmann::json::array();
    for (const simulator::Collection& album : library.content())
        if (titles.size() < wanted && album.title && album.title->starts_with("Album "))
            titles.push_back(*album.title);
    return titles;
}

} // namespace

void prepareDevice(const Options& options) {
    const simulator::Device device = simulator::Device::create(options.text("device"));
    const std::optional<simulator::Release> release = simulator::releaseNamed(options.text("release"));
    if (!release) throw std::invalid_argument("there is no such release");
    device.changeConditions([&](simulator::Conditions& conditions) { conditions.release = *release; });
    const std::size_t albums = options.number("albums");
    const auto library = simulator::PhotoLibrary::open(device);
    addAlbums(*library, albums);
    const nlohmann::json locked = titlesToLock(*library, options.number("locked"));
    if (locked.size() != options.number("locked"))
        throw std::runtime_error("there are too few albums to lock");
    device.writePropertyList(lockedAlbums, locked);
}

} // namespace bench
