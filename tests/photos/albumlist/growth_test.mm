// Configuring the album list's cells thousands of times must not make the process grow.
#include "support/photos_test.h"

#import <Foundation/NSDebug.h>

#include <gmock/gmock.h>

#include <objc/runtime.h>

#include <cstdlib>
#include <map>

namespace simulator::test {
namespace {

using Counts = std::map<std::string, int>;

// The living objects of each class; counting must be on.
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

class AlbumListGrowth : public PhotosTest {
  protected:
    // Locks and unlocks in turn, so that overlays come and go.
    void configure(int rounds) {
        for (int round = 0; round < rounds; ++round) {
            @autoreleasepool {
                lockAlbums(round % 2 == 0 ? std::vector<std::string>{"Holidays", "Family", "Camera Roll"}
                                          : std::vector<std::string>{"Pets"});
                reload();
            }
        }
    }
};

TEST_F(AlbumListGrowth, only_the_press_recognisers_become_more) {
    GSDebugAllocationActive(YES);
    openAlbumList();
    photos::setEditing(true);
    configure(10);
    constexpr int rounds = 100;
    const auto cells = static_cast<int>([[[photos::albumList() mainCollectionView] visibleCells] count]);
    const Counts before = livingObjects();
    configure(rounds);
    EXPECT_EQ(growth(before, livingObjects()), (Counts{{"UILongPressGestureRecognizer", rounds * cells}}));
}

} // namespace
} // namespace simulator::test
