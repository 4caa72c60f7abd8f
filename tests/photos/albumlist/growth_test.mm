// Configuring the album list's cells thousands of times must not make the process grow.
#include "device/living_objects.h"
#include "support/photos_fixture.h"

namespace simulator::test {
namespace {

class AlbumListGrowth : public PhotosTest {
  protected:
    // Locks and unlocks in turn, so that overlays come and go.
    void configure(int rounds) {
        for (int round = 0; round < rounds; ++round) {
            @autoreleasepool {
                lockAlbums(round % 2 == 0 ? Texts{"Holidays", "Family", "Camera Roll"} : Texts{"Pets"});
                reload();
            }
        }
    }
};

TEST_F(AlbumListGrowth, only_the_press_recognisers_become_more) {
    startCountingObjects();
    openAlbumList();
    photos::setEditing(true);
    configure(10);
    constexpr int rounds = 100;
    const auto cells = static_cast<int>([[[photos::albumList() mainCollectionView] visibleCells] count]);
    const ObjectCounts before = livingObjects();
    configure(rounds);
    EXPECT_EQ(growth(before, livingObjects()),
              (ObjectCounts{{"UILongPressGestureRecognizer", rounds * cells}}));
}

} // namespace
} // namespace simulator::test
