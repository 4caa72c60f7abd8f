// Fetches in great numbers, and on many threads.
#import "filtering/filtering_fixture.h"

#include "support/environment.h"

#include <malloc.h>

#include <atomic>
#include <thread>

namespace simulator::test {
namespace {

class Robustness : public FilteringTest {
  protected:
    void prepare(const char* bundleIdentifier) {
        change([](Conditions& conditions) { conditions.coreFoundationVersion = ios11; });
        lockAlbums({"Holidays", "Videos"});
        library().addAlbum(std::nullopt);
        startComplete(bundleIdentifier);
    }
};

// Everything that a picker asks, of collections that cost little to make.
void ask(NSArray* collections) {
    @autoreleasepool {
        listed(collections);
        for (id each in collections) {
            [PHAsset fetchAssetsInAssetCollection:each options:nil];
            [PHAsset fetchKeyAssetsInAssetCollection:each options:nil];
        }
        PHFetchResult* fetched = albums(static_cast<PHAssetCollectionType>(0));
        [fetched fetchedObjects];
        [fetched fetchedObjectIDsSet];
    }
}

class FilteringGrowth : public Robustness {};

TEST_F(FilteringGrowth, nothing_grows_over_a_million_calls) {
    prepare(host::plain);
    NSMutableArray* cheap = [NSMutableArray array];
    for (const NSInteger type : {0, 3, 4})
        [cheap addObject:[FakeCollection collectionOfType:type subtype:2 title:@"Holidays"]];
    NSArray* everything = [[albums() fetchedObjects]
        arrayByAddingObject:[[albums(PHAssetCollectionTypeSmartAlbum) fetchedObjects] lastObject]];
    everything = [everything arrayByAddingObject:[FakeCollection collectionOfType:1
                                                                          subtype:2
                                                                            title:static_cast<id>(@7)]];
    const int rounds = configuration() == "release" ? 100'000 : 500;
    std::size_t before = 0;
    for (int round = 0; round < rounds; ++round) {
        if (round == rounds / 10) before = mallinfo2().uordblks;
        ask(cheap);
        if (round % 50 == 0) ask(everything);
    }
    EXPECT_LT(mallinfo2().uordblks, before + 65536);
}

TEST_F(Robustness, threads_fetch_while_settings_and_the_locked_list_change) {
    prepare(host::plain);
    NSArray* everything = [albums() fetchedObjects];
    std::atomic<bool> isOver = false;
    std::atomic<int> surprises = 0;
    std::thread threads[8];
    for (std::thread& thread : threads)
        thread = std::thread([&] {
            while (!isOver)
                @autoreleasepool {
                    ask(everything);
                    const NSUInteger shown = [listed(everything) count];
                    if (shown != 5 && shown != 4) ++surprises; // with "Pets" and without it
                }
        });
    for (int round = 0; round < (configuration() == "tsan" ? 200 : 20); ++round) {
        lockAlbums({round % 2 == 0 ? "Holidays" : "Family"});
        reloadPreferences({{"albumNamePets", round % 2 == 0}, {"hideLockedFromApps", round % 3 == 0}});
    }
    isOver = true;
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(surprises, 0);
}

} // namespace
} // namespace simulator::test
