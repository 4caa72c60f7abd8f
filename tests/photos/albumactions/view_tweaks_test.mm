// Single answers of Photos that a setting changes.
#import "PhotosUICore/PhotosUICore.h"
#include "support/photos_fixture.h"

namespace simulator::test {
namespace {

class ViewTweaks : public PhotosTest {
  protected:
    // Runs `check` under every pair of the master switch and the setting, and with neither in the file.
    void underEverySetting(const char* setting, const std::function<void(bool applies)>& check) {
        openAlbumList();
        check(false);
        for (const bool enabled : {true, false, true})
            for (const bool isOn : {true, false}) {
                SCOPED_TRACE(testing::Message() << "enabled " << enabled << ", " << setting << ' ' << isOn);
                reloadPreferences({{"enabled", enabled}, {setting, isOn}});
                check(enabled && isOn);
            }
    }
};

TEST_F(ViewTweaks, deleting_asks_unless_told_not_to) {
    underEverySetting("skipDelete", [&](bool applies) {
        const std::size_t before = library().visibleAssets().size();
        photos::selectPhotos(photos::openMoments(), {0});
        tapBarButton("Delete");
        EXPECT_EQ(frontAlert() == nil, applies);
        if (!applies) {
            tapAlertAction("Cancel");
            return tapBarButton("Cancel"); // ends the selection
        }
        settle();
        EXPECT_EQ(library().visibleAssets().size(), before - 1);
    });
}

TEST_F(ViewTweaks, every_photo_wears_the_live_badge_when_wanted) {
    underEverySetting("showLiveBadge", [&](bool applies) {
        for (const std::size_t number : {0U, 9U}) {
            PHAsset* asset = [[PHAsset fetchAssetsWithOptions:nil] objectAtIndex:number];
            PUAssetViewModel* model = [[[PUAssetViewModel alloc] initWithAsset:asset] autorelease];
            EXPECT_EQ([model wantsIrisBadgeVisible], applies || number == 9) << number;
        }
    });
}

TEST_F(ViewTweaks, zoom_limit_is_raised_whatever_is_set) {
    underEverySetting("increaseZoom", [&](bool applies) {
        PUOneUpSettings* settings = [[[PUOneUpSettings alloc] init] autorelease];
        EXPECT_EQ([settings defaultMaximumZoomFactor], applies ? 400.0 : 2.5);
        for (const double factor : {1.25, 0.0, -3.0, 1000.0}) {
            [settings setDefaultMaximumZoomFactor:factor];
            EXPECT_EQ([settings defaultMaximumZoomFactor], applies ? 400.0 : factor);
        }
    });
}

TEST_F(ViewTweaks, stock_albums_are_reordered_as_photos_allows) {
    underEverySetting("reorderStock", [&](bool) {
        auto manager = [[[PXPhotoKitCollectionsDataSourceManager alloc] init] autorelease];
        for (const char* title : {"Holidays", "Videos"}) {
            NSIndexPath* path = photos::pathOfAlbum(photos::albumList(), title);
            PHCollection* album = [photos::albumList() collectionAtIndexPath:path];
            EXPECT_EQ([manager canReorderCollection:album], title[0] == 'H');
        }
    });
}

} // namespace
} // namespace simulator::test
