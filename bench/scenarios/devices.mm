#include "device/device.h"
#include "photolibrary/samples.h"
#include "scenarios/scenarios.h"

#include <stdexcept>

namespace bench {
namespace {

constexpr const char* lockedAlbums = "/var/mobile/Library/rollkeeper/lockedAlbums.plist";

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
    simulator::addSample(*library, {.photos = albums * photosInAlbum, .albums = albums});
    const nlohmann::json locked = titlesToLock(*library, options.number("locked"));
    if (locked.size() != options.number("locked"))
        throw std::runtime_error("there are too few albums to lock");
    device.writePropertyList(lockedAlbums, locked);
}

} // namespace bench
