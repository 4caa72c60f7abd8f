// Photos as it is without any library: album list, edit mode, picking, trash, one-up view, tabs.
#include "hosts/applications/photos/photos_app.h"

#import "UIKit/ViewTree.h"

#include "device/exceptions.h"
#include "simulator/hosts/hosts_test.h"

#include <gmock/gmock.h>
#include <objc/runtime.h>

namespace simulator::test {
namespace {

using testing::ElementsAre;

class PhotosApp : public HostsTest {
  protected:
    // Before the application starts.
    void changeConditions(const std::function<void(Conditions&)>& change) {
        device().changeConditions(change);
    }
    void startPhotos() { start(bundle::photos); }

    static std::string titleOf(UIViewController* controller) { return [[controller title] UTF8String]; }
    static UIViewController* top() {
        return [[photos::library() selectedNavigationController] topViewController];
    }
};

std::vector<std::string> titles(const nlohmann::json& rows) {
    std::vector<std::string> all;
    for (const auto& row : rows)
        all.push_back(row.at("title"));
    return all;
}

nlohmann::json rowTitled(const nlohmann::json& rows, const std::string& title) {
    for (const auto& row : rows)
        if (row.at("title") == title) return row;
    return nullptr;
}

TEST_F(PhotosApp, lists_stock_albums_and_the_users_with_counts_and_edit_capabilities) {
    startPhotos();
    const auto rows = photos::describeAlbums(photos::openAlbumList());
    const struct {
        const char* title;
        const char* subtitle;
        int editCapabilities;
    } expected[] = {{"People", "", 0},       {"Videos", "1", 4},   {"Camera Roll", "10", 0},
                    {"Screenshots", "1", 4}, {"Holidays", "3", 7}, {"Family", "4", 7},
                    {"Pets", "0", 7}};
    for (const auto& each : expected) {
        const auto row = rowTitled(rows, each.title);
        ASSERT_FALSE(row.is_null()) << each.title;
        EXPECT_EQ(row.at("subtitle"), each.subtitle) << each.title;
        EXPECT_EQ(row.at("editCapabilities"), each.editCapabilities) << each.title;
    }
    EXPECT_THAT(titles(rows), testing::Not(testing::Contains("Panoramas")))
        << "an empty stock album is not listed";
}

TEST_F(PhotosApp, leaves_hidden_photos_out_of_the_count) {
    library().setHidden(photo(0).identifier, true);
    startPhotos();
    const auto rows = photos::describeAlbums(photos::openAlbumList());
    EXPECT_EQ(rowTitled(rows, "Holidays").at("subtitle"), "2");
    EXPECT_EQ(rowTitled(rows, "Camera Roll").at("subtitle"), "9");
}

struct CoverCase {
    double screenWidth;
    double side;
};

class Covers : public PhotosApp, public testing::WithParamInterface<CoverCase> {};

TEST_P(Covers, are_as_wide_as_the_screen_wants) {
    changeConditions([](Conditions& conditions) { conditions.screen.width = GetParam().screenWidth; });
    startPhotos();
    PUAlbumListCell* cell = photos::albumCell(photos::openAlbumList(), "Holidays");
    const CGRect cover = [[[cell albumListCellContentView] stackView] frame];
    EXPECT_EQ(cover.size.width, GetParam().side);
    EXPECT_EQ(cover.size.height, GetParam().side);
    EXPECT_TRUE([[[cell albumListCellContentView] stackView] coverImage] != nil);
}

INSTANTIATE_TEST_SUITE_P(Screens, Covers,
                         testing::Values(CoverCase{320, 136}, CoverCase{375, 164}, CoverCase{414, 180},
                                         CoverCase{390, 171}));

TEST_F(PhotosApp, opens_an_album_with_its_photos) {
    startPhotos();
    PUPhotosAlbumViewController* album = photos::openAlbum("Holidays");
    EXPECT_EQ(titleOf(album), "Holidays");
    EXPECT_EQ([[album assets] count], 3U);
    EXPECT_FALSE([album shouldShowSectionHeaders]);
    EXPECT_FALSE([album isTrashBinViewController]);
    EXPECT_TRUE([photos::openAlbum("Camera Roll") shouldShowSectionHeaders]);
}

TEST_F(PhotosApp, shows_delete_buttons_in_edit_mode_only_on_the_users_albums) {
    startPhotos();
    PUAlbumListViewController* list = photos::openAlbumList();
    const auto deleteButton = [&](const char* title) {
        return [[photos::albumCell(list, title) albumListCellContentView] _deleteButton];
    };
    EXPECT_TRUE(deleteButton("Holidays") == nil);
    photos::setEditing(true);
    EXPECT_TRUE([deleteButton("Holidays") isKindOfClass:objc_getClass("PXUIButton")]);
    EXPECT_TRUE([deleteButton("Holidays") superview] ==
                [photos::albumCell(list, "Holidays") albumListCellContentView]);
    EXPECT_TRUE(deleteButton("Camera Roll") == nil);
    photos::setEditing(false);
    EXPECT_TRUE(deleteButton("Holidays") == nil);
}

TEST_F(PhotosApp, deletes_an_album_only_when_the_user_confirms) {
    startPhotos();
    photos::openAlbumList();
    photos::setEditing(true);
    photos::tapDeleteAlbum("Holidays");
    tapAlertAction("Cancel");
    EXPECT_TRUE(library().albumTitled("Holidays"));
    photos::tapDeleteAlbum("Holidays");
    tapAlertAction("Delete Album");
    waitFor([&] { return !library().albumTitled("Holidays"); });
    EXPECT_EQ(library().visibleAssets().size(), 10U);
}

TEST_F(PhotosApp, adds_selected_photos_to_the_album_that_the_user_chooses) {
    startPhotos();
    PUZoomableGridViewController* moments = photos::openMoments();
    photos::selectPhotos(moments, {8, 9});
    EXPECT_EQ([[moments selectedAssets] count], 2U);
    EXPECT_FALSE([[moments selectedAssets] isKindOfClass:[NSArray class]]);
    PUAlbumListViewController* list = photos::addSelectionToAlbum();
    EXPECT_TRUE([list _pickerBannerView] != nil);
    photos::tapAlbum("Pets");
    waitFor([&] { return [moments presentedViewController] == nil; });
    EXPECT_THAT(numbersIn("Pets"), ElementsAre(8U, 9U));
    EXPECT_EQ([[moments selectedAssets] count], 0U);
}

TEST_F(PhotosApp, removes_photos_from_an_album_and_keeps_them_in_the_library) {
    startPhotos();
    PUPhotosAlbumViewController* album = photos::openAlbum("Holidays");
    photos::selectPhotos(album, {0, 1});
    tapBarButton("Delete");
    tapAlertAction("Remove from Album");
    waitFor([&] { return numbersIn("Holidays").size() == 1; });
    EXPECT_EQ(library().visibleAssets().size(), 10U);
}

TEST_F(PhotosApp, moves_deleted_photos_to_the_trash_and_back) {
    startPhotos();
    photos::selectPhotos(photos::openMoments(), {0});
    tapBarButton("Delete");
    EXPECT_TRUE(frontAlert() != nil) << "deleting asks first";
    tapAlertAction("Delete Photo");
    waitFor([&] { return photo(0).trashed; });

    PUPhotosAlbumViewController* trash = photos::openAlbum("Recently Deleted");
    EXPECT_TRUE([trash isTrashBinViewController]);
    photos::selectPhotos(trash, {0});
    tapBarButton("Recover");
    EXPECT_EQ([[trash selectedAssets] count], 1U) << "the selection stays until the work is done";
    tapAlertAction("Recover Photo");
    waitFor([&] { return !photo(0).trashed; });
}

TEST_F(PhotosApp, restores_the_photo_of_the_one_up_view) {
    library().setTrashed(photo(2).identifier, true);
    startPhotos();
    PUOneUpViewController* oneUp = photos::openPhoto(photos::openAlbum("Recently Deleted"), 0);
    tapBarButton("Recover");
    waitFor([&] { return !photo(2).trashed; });
    waitFor([&] { return top() != oneUp; });
}

TEST_F(PhotosApp, one_up_view_knows_its_asset) {
    startPhotos();
    PUOneUpViewController* oneUp = photos::openPhoto(photos::openMoments(), 7);
    EXPECT_TRUE([[oneUp _currentContentTileController] isKindOfClass:[PUVideoTileViewController class]]);
    EXPECT_TRUE([[[oneUp _currentContentTileController] asset] isEqual:asset(7)]);
    PUBrowsingSession* session = [[oneUp barsController] browsingSession];
    EXPECT_TRUE([[[[session viewModel] currentAssetReference] asset] isEqual:asset(7)]);
    EXPECT_TRUE([[photos::library() tabBar] isHidden]);
}

TEST_F(PhotosApp, adds_the_photo_of_the_one_up_view_to_an_album) {
    startPhotos();
    PUOneUpViewController* oneUp = photos::openPhoto(photos::openMoments(), 5);
    photos::addSelectionToAlbum();
    photos::tapAlbum("Pets");
    waitFor([&] { return [oneUp presentedViewController] == nil; });
    EXPECT_THAT(numbersIn("Pets"), ElementsAre(5U));
}

TEST_F(PhotosApp, skips_the_question_when_told_to) {
    startPhotos();
    PUDeletePhotosActionController* action =
        [[[PUDeletePhotosActionController alloc] initWithAssets:@[ asset(4) ]] autorelease];
    [action setShouldSkipDeleteConfirmation:YES];
    [action performFromViewController:top() completion:nil];
    EXPECT_TRUE(frontAlert() == nil);
    waitFor([&] { return photo(4).trashed; });
}

TEST_F(PhotosApp, has_a_tab_for_each_content_mode_that_is_not_excluded) {
    startPhotos();
    const auto tabTitles = [] {
        std::vector<std::string> all;
        for (UITabBarItem* item in [[photos::library() tabBar] items])
            all.emplace_back([[item title] UTF8String]);
        return all;
    };
    EXPECT_THAT(tabTitles(), ElementsAre("Photos", "Memories", "Shared", "Albums"));
    [photos::library() setExcludedContentModes:@[ @9, @1 ]];
    EXPECT_THAT(tabTitles(), ElementsAre("Photos", "Albums"));
    EXPECT_EQ(standardExceptionOf([] { photos::selectTab(PUContentModeShared); }),
              "the library has no tab for content mode 1");
}

TEST_F(PhotosApp, navigation_controller_follows_the_controller_on_top) {
    startPhotos();
    PUAlbumListViewController* list = photos::openAlbumList();
    auto navigation = static_cast<PUNavigationController*>([list navigationController]);
    EXPECT_TRUE([navigation _currentToolbarViewController] == list);
    PUPhotosAlbumViewController* album = photos::openAlbum("Family");
    EXPECT_TRUE([navigation _currentToolbarViewController] == album);
    [navigation popToRootViewControllerAnimated:NO];
    EXPECT_TRUE([navigation _currentToolbarViewController] == list);
}

TEST_F(PhotosApp, sharing_screen_keeps_its_cancel_button) {
    startPhotos();
    photos::selectPhotos(photos::openMoments(), {0, 1});
    PUPhotosSharingViewController* sharing = photos::shareSelection();
    EXPECT_EQ([[sharing assets] count], 2U);
    EXPECT_EQ(titleOf(sharing), "2 Photos Selected");
    EXPECT_EQ([[[[[sharing navigationController] navigationBar] topItem] leftBarButtonItems] count], 1U);
    tapBarButton("Cancel");
    waitFor([&] { return [sharing presentingViewController] == nil; });
}

TEST_F(PhotosApp, keeps_the_album_open_while_in_the_background) {
    startPhotos();
    PUPhotosAlbumViewController* album = photos::openAlbum("Family");
    [photos::application() enterBackground];
    [photos::application() enterForeground];
    EXPECT_TRUE(top() == album);
}

TEST_F(PhotosApp, holds_the_library_in_an_instance_variable) {
    startPhotos();
    Ivar variable = class_getInstanceVariable([photos::application() class], "_tabbedLibraryViewController");
    ASSERT_TRUE(variable != nullptr);
    EXPECT_TRUE(object_getIvar(photos::application(), variable) == photos::library());
    EXPECT_FALSE([photos::application() respondsToSelector:@selector(_tabbedLibraryViewController)]);
}

struct TweakCase {
    std::size_t photo;
    bool badge;
};

TEST_F(PhotosApp, live_badge_is_for_live_photos) {
    startPhotos();
    for (const TweakCase each : {TweakCase{0, false}, TweakCase{9, true}}) {
        PUAssetViewModel* model = [[[PUAssetViewModel alloc] initWithAsset:asset(each.photo)] autorelease];
        EXPECT_EQ([model wantsIrisBadgeVisible] != NO, each.badge) << each.photo;
    }
}

TEST_F(PhotosApp, a_press_on_a_cell_reaches_a_recogniser_of_the_cell) {
    startPhotos();
    PUAlbumListViewController* list = photos::openAlbumList();
    PUAlbumListCell* cell = photos::albumCell(list, "Holidays");
    UILongPressGestureRecognizer* recognizer =
        [[[UILongPressGestureRecognizer alloc] initWithTarget:list
                                                       action:@selector(reloadContentView)] autorelease];
    [recognizer setMinimumPressDuration:0.9];
    [cell addGestureRecognizer:recognizer];
    EXPECT_TRUE([longPress(cell, 1.0) isDescendantOfView:cell]);
    EXPECT_TRUE(top() == list) << "a press opens nothing";
}

class Releases : public PhotosApp, public testing::WithParamInterface<Release> {};

// Every screen that the release has can be walked.
TEST_P(Releases, can_be_walked) {
    changeConditions([](Conditions& conditions) { conditions.release = GetParam(); });
    startPhotos();
    if (GetParam() == Release::ios7_1) {
        EXPECT_TRUE(top() != nil);
        return;
    }
    photos::openAlbumList();
    photos::setEditing(true);
    photos::setEditing(false);
    photos::openAlbum("Family");
    if (GetParam() >= Release::ios9_3) photos::openPhoto(photos::openMoments(), 0);
    photos::selectPhotos(photos::openMoments(), {0});
    photos::addSelectionToAlbum();
    tapBarButton("Cancel");
}

INSTANTIATE_TEST_SUITE_P(All, Releases, testing::ValuesIn(allReleases), [](const auto& info) {
    std::string name(releaseName(info.param));
    std::ranges::replace(name, '.', '_');
    return "release_" + name;
});

} // namespace
} // namespace simulator::test
