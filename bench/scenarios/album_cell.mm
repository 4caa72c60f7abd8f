#include "device/device.h"
#include "hosts/host.h"
#include "measuring.h"
#include "scenarios/scenarios.h"

#import "hosts/applications/common/screen.h"
#import "hosts/applications/photos/photos_app.h"

#import <Foundation/NSDebug.h>

#include <cstdlib>
#include <stdexcept>

namespace bench {
namespace {

namespace photos = simulator::photos;

constexpr const char* lockedAlbums = "/var/mobile/Library/rollkeeper/lockedAlbums.plist";
constexpr const char* recogniser = "UILongPressGestureRecognizer";

using Counts = std::map<std::string, int>;

// The living objects of each class, since GSDebugAllocationActive(YES).
Counts livingObjects() {
    Counts counts;
    Class* classes = GSDebugAllocationClassList();
    for (Class* each = classes; *each != nullptr; ++each)
        counts[class_getName(*each)] = GSDebugAllocationCount(*each);
    std::free(classes);
    return counts;
}

Counts growth(const Counts& before, const Counts& after) {
    Counts grown;
    for (const auto& [name, count] : after) {
        const auto found = before.find(name);
        const int more = count - (found == before.end() ? 0 : found->second);
        if (more > 0) grown[name] = more;
    }
    return grown;
}

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
    const simulator::Host host({.bundleIdentifier = photosApplication,
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
    GSDebugAllocationActive(YES);
    const simulator::Host host({.bundleIdentifier = photosApplication,
                                .device = options.text("device"),
                                .library = options.library()});
    PUAlbumListViewController* list = photos::openAlbumList();
    for (int round = 0; round < 20; ++round)
        reload();
    const std::size_t cells = [[[list mainCollectionView] visibleCells] count];
    if (cells == 0) throw std::runtime_error("the list shows no cell");

    const long memoryBefore = memoryInUse();
    const Counts before = livingObjects();
    std::size_t done = 0;
    for (; done < wanted; done += cells)
        reload();
    Counts grown = growth(before, livingObjects());
    report("memory", memoryInUse() - memoryBefore);
    report("configurations", done);
    report("recognisers", grown[recogniser]);
    grown.erase(recogniser);
    report("grown", grown);
}

} // namespace bench
