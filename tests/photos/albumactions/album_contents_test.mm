// Moved photos become visible again when they leave their last album or come back from the trash; and how an
// album is shown.
#include "support/hiding_log.h"
#include "support/photos_fixture.h"

// An album under a title that a test chooses.
@interface RetitledAlbum : PUPhotosAlbumViewController {
  @public
    NSString* localizedTitle;
}
@end

@implementation RetitledAlbum

- (id)assetCollection {
    return self;
}
- (NSString*)localizedTitle {
    return localizedTitle;
}

@end

namespace simulator::test {
namespace {

class AlbumContents : public PhotosTest {
  protected:
    void openPhotos() {
        for (std::size_t number = 0; number < 10; ++number)
            m_identifiers.push_back(identifier(number));
        openAlbumList();
        keepHidingLog(library());
    }
    const std::string& idOf(std::size_t number) const { return m_identifiers.at(number); }
    bool isHidden(std::size_t number) { return library().asset(idOf(number))->hidden; }
    bool isTrashed(std::size_t number) { return library().asset(idOf(number))->trashed; }
    void select(PUPhotosGridViewController* grid, const Numbers& numbers) {
        std::vector<std::size_t> places;
        for (const std::size_t number : numbers)
            for (NSUInteger place = 0; place < [[grid assets] count]; ++place)
                if (text([[[grid assets] objectAtIndex:place] localIdentifier]) == idOf(number))
                    places.push_back(place);
        photos::selectPhotos(grid, places);
    }
    void hideAndDelete(const Numbers& numbers) {
        for (const std::size_t number : numbers) {
            library().setHidden(idOf(number), true);
            library().setTrashed(idOf(number), true);
        }
    }

  private:
    Texts m_identifiers;
};

TEST_F(AlbumContents, photos_that_leave_their_last_album_are_shown_first) {
    // One after the other: once out of "Holidays", 2 is in "Family" only.
    const struct {
        bool enabled;
        const char* album;
        Numbers removed;
        const char* expected;
    } steps[] = {
        {true, "Holidays", {2}, "show nothing"},
        {false, "Family", {5, 2, 3}, "show 5 2 3"},
        {true, "Work", {6}, "show 6"},
        {true, "Holidays", {0}, "show 0"},
    };
    hide({0, 1, 2, 3, 4, 6});
    openPhotos();
    for (const auto& each : steps) {
        SCOPED_TRACE(each.expected);
        reloadPreferences({{"enabled", each.enabled}});
        select(photos::openAlbum(each.album), each.removed);
        tapBarButton("Delete");
        EXPECT_EQ(takeHidingLog(), Texts{"present"});
        tapAlertAction("Remove from Album");
        EXPECT_EQ(takeHidingLog(), (Texts{each.expected, "change"}));
    }
    EXPECT_EQ(numbersIn("Holidays"), Numbers{1});
    EXPECT_EQ(numbersIn("Family"), Numbers{4});
    EXPECT_EQ(hiddenNumbers(), (Numbers{1, 4}));
}

TEST_F(AlbumContents, removal_without_selection_shows_nothing_and_tells) {
    openPhotos();
    bool isDone = false;
    bool* done = &isDone;
    [photos::openAlbum("Holidays") _removeSelectedAssetsWithCompletion:^(BOOL success) {
        *done = success == YES;
    }];
    EXPECT_EQ(takeHidingLog(), (Texts{"show nothing", "change"}));
    waitFor([&] { return isDone; });
}

TEST_F(AlbumContents, deleting_from_a_stock_album_shows_photos_too_but_moments_do_not) {
    openPhotos();
    select(photos::openAlbum("Videos"), {7});
    tapBarButton("Delete");
    EXPECT_EQ(takeHidingLog(), (Texts{"show 7", "present"}));
    tapAlertAction("Cancel");
    select(photos::openMoments(), {8});
    tapBarButton("Delete");
    EXPECT_EQ(takeHidingLog(), Texts{"present"});
}

TEST_F(AlbumContents, recovered_photos_that_are_in_no_album_are_shown_after_the_stock_work) {
    openPhotos();
    hideAndDelete({2, 6, 8});
    PUPhotosAlbumViewController* trash = photos::openAlbum("Recently Deleted");
    select(trash, {});
    tapBarButton("Recover");
    EXPECT_EQ(takeHidingLog(), Texts{"show nothing and tell"});
    select(trash, {2, 6, 8});
    tapBarButton("Recover");
    EXPECT_EQ(takeHidingLog(), (Texts{"present", "show 8 and tell"}));
    tapAlertAction("Recover 3 Photos");
    EXPECT_EQ(takeHidingLog(), Texts{"change"});
    EXPECT_FALSE(isTrashed(2) || isTrashed(6) || isTrashed(8));
    EXPECT_TRUE(!isHidden(8) && isHidden(6) && isHidden(2));
}

TEST_F(AlbumContents, photo_restored_from_its_own_screen_is_shown_when_in_no_album) {
    const struct {
        std::size_t number;
        Texts expected;
    } cases[] = {{8, {"change", "show 8 and tell"}}, {6, {"change"}}, {2, {"change"}}};
    openPhotos();
    for (const auto& each : cases) {
        SCOPED_TRACE(each.number);
        hideAndDelete({each.number});
        PUOneUpViewController* oneUp = photos::openPhoto(photos::openAlbum("Recently Deleted"), 0);
        tapBarButton("Recover");
        EXPECT_EQ(takeHidingLog(), each.expected);
        EXPECT_FALSE(isTrashed(each.number));
        waitFor([&] { return controllerOnScreen() != oneUp; });
        EXPECT_EQ(isHidden(each.number), each.expected.size() == 1);
    }
    hideAndDelete({7});
    PUOneUpViewController* oneUp = photos::openPhoto(photos::openAlbum("Recently Deleted"), 0);
    [[[oneUp browsingSession] viewModel] setCurrentAssetReference:nil];
    tapBarButton("Recover");
    EXPECT_EQ(takeHidingLog(), Texts()) << "there is nothing to restore";
}

TEST_F(AlbumContents, only_what_is_titled_camera_roll_loses_its_section_headers) {
    openPhotos();
    PUPhotosAlbumViewController* cameraRoll = photos::openAlbum("Camera Roll");
    EXPECT_FALSE([cameraRoll shouldShowSectionHeaders]);
    RetitledAlbum* retitled = [[[RetitledAlbum alloc] init] autorelease];
    [retitled setAssetCollection:[cameraRoll assetCollection]
        fetchResultContainingAssetCollection:nil
                             filterPredicate:[NSPredicate predicateWithFormat:@"favorite == YES"]
                        existingFetchResults:nil];
    EXPECT_EQ([[retitled assets] count], 1U) << "the arguments reach the stock method";
    EXPECT_TRUE([retitled shouldShowSectionHeaders]) << "without a title";
    for (NSString* title in @[ @"camera roll", @"Camera Roll ", @"Aufnahmen", @"" ]) {
        retitled->localizedTitle = title;
        EXPECT_TRUE([retitled shouldShowSectionHeaders]) << text(title);
    }
    retitled->localizedTitle = [NSMutableString stringWithString:@"Camera Roll"];
    reloadPreferences({{"enabled", false}});
    EXPECT_FALSE([retitled shouldShowSectionHeaders]);
}

TEST_F(AlbumContents, albums_open_at_their_newest_photos) {
    Identifiers many;
    for (int count = 0; count < 80; ++count)
        many.push_back(library().addAsset({.created = 1.0 * count}));
    library().addAlbum("Many", many);
    openPhotos();
    for (const bool enabled : {true, false}) {
        reloadPreferences({{"enabled", enabled}});
        UICollectionView* grid = [photos::openAlbum("Many") collectionView];
        EXPECT_EQ(CGRectGetMaxY([grid bounds]),
                  [[grid collectionViewLayout] collectionViewContentSize].height);
    }
    EXPECT_EQ([[photos::openMoments() collectionView] contentOffset].y, 0) << "moments are no album";
}

} // namespace
} // namespace simulator::test
