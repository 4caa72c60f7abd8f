#include "hosts/host.h"
#include "measuring.h"
#include "scenarios/scenarios.h"

#import "CoreFoundation/CoreFoundation.h"
#import "Photos/Photos.h"
#import "filtering/literal_collections.h"

#include <stdexcept>

namespace bench {
namespace {

simulator::HostOptions plainHost(const Options& options) {
    return {.bundleIdentifier = simulator::bundle::plain,
            .device = options.text("device"),
            .library = options.library()};
}

PHFetchResult* allAlbums() {
    return [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                    subtype:PHAssetCollectionSubtypeAlbumRegular
                                                    options:nil];
}

} // namespace

void measureCollections(const Options& options) {
    const simulator::Host host(plainHost(options));
    PHFetchResult* albums = allAlbums();
    const NSUInteger count = [albums count];
    PHCollectionList* list = [PHCollectionList transientCollectionListWithCollectionsFetchResult:albums
                                                                                           title:@"All"];
    const auto ask = [list] {
        @autoreleasepool {
            if ([[list collections] count] == 0) throw std::runtime_error("the list is empty");
        }
    };
    const long before = memoryInUse();
    resetPeakMemory();
    ask();
    report("memory", peakMemory() - before);
    report("albums", count);
    measure("collections", ask);
}

void measureLiteralCollections(const Options& options) {
    const simulator::Host host(plainHost(options));
    NSArray* albums = [allAlbums() fetchedObjects];
    const simulator::test::LiteralWorld world {
        @(simulator::bundle::plain), kCFCoreFoundationVersionNumber, @{}, @{}
    };
    measure("collections", [&] {
        @autoreleasepool {
            NSArray* found = simulator::test::literalCollections(
                ^{
                    return albums;
                },
                world);
            if ([found count] == 0) throw std::runtime_error("the list is empty");
        }
    });
}

void measureAlbumFetch(const Options& options) {
    const simulator::Host host(plainHost(options));
    PHAssetCollection* album = [allAlbums() lastObject];
    measure("fetch", [album] {
        @autoreleasepool {
            if ([[PHAsset fetchAssetsInAssetCollection:album options:nil] count] == 0)
                throw std::runtime_error("the album is empty");
        }
    });
}

} // namespace bench
