#include "device/device.h"
#include "device/living_objects.h"
#include "hosts/host.h"
#include "measuring.h"
#include "scenarios/scenarios.h"

#import "hosts/applications/common/screen.h"
#import "hosts/applications/photos/photos_app.h"

#include <stdexcept>

namespace bench {
namespace {

namespace photos = simulator::photos;

constexpr const char* lockedAlbums = "/var/mobile/Library/rollkeeper/lockedAlbums.plist";
constexpr const char* recogniser = "UILongPressGestureRecognizer";

// Configures every visible cell anew.
void reload() {
    @autoreleasepool {
        [photos::albumList() reloadContentView];
        simulator::layOutScreen();
    }
}

} // namespace

void measureAlbumCell(const Options& options) {
    const auto locked = simulator::Device::open(options.text("device")).readPropertyList(lockedAlbums);
    const simulator::Host host({.bundleIdentifier = simulator::bundle::photos,
                                .device = options.text("device"),
                                .library = options.library()});
    PUAlbumListViewController* list = photos::openAlbumList();
    NSIndexPath* path = photos::pathOfAlbum(list, locked.back().get<std::string>());
    if (path == nil) throw std::runtime_error("the list does not show the locked album");
    UICollectionView* grid = [list mainCollectionView];
    const auto configure = [&] {
        @autoreleasepool {
            if ([list collectionView:grid cellForItemAtIndexPath:path] == nil)
                throw std::runtime_error("there is no cell for the album");
        }
    };
    measure("cell", configure);
}

void measureAlbumCellGrowth(const Options& options) {
    const std::size_t wanted = options.number("configurations");
    simulator::startCountingObjects();
    const simulator::Host host({.bundleIdentifier = simulator::bundle::photos,
                                .device = options.text("device"),
                                .library = options.library()});
    PUAlbumListViewController* list = photos::openAlbumList();
    for (int round = 0; round < 20; ++round)
        reload();
    const std::size_t cells = [[[list mainCollectionView] visibleCells] count];
    if (cells == 0) throw std::runtime_error("the list shows no cell");

    const long memoryBefore = memoryInUse();
    const simulator::ObjectCounts before = simulator::livingObjects();
    std::size_t done = 0;
    for (; done < wanted; done += cells)
        reload();
    simulator::ObjectCounts grown = simulator::growth(before, simulator::livingObjects());
    report("memory", memoryInUse() - memoryBefore);
    report("configurations", done);
    report("recognisers", grown[recogniser]);
    grown.erase(recogniser);
    report("grown", grown);
}

} // namespace bench
