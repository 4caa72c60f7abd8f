// Picking an album for photos: moving or copying them, and where the question points on a pad.
#include "support/photos_fixture.h"

#include <gmock/gmock.h>

namespace simulator::test {
namespace {

// For the sample's ninth photo.
class AlbumPicking : public PhotosTest {
  protected:
    AlbumPicking() { useTallScreen(); }
    void startPicking(const json& preferences = {}, const Texts& locked = {}) {
        library().addAlbum("Camera Roll");
        library().addAlbum("Zoo");
        if (!preferences.is_null()) writePreferences(preferences);
        lockAlbums(locked);
        start(host::photos);
        pick();
    }
    void pick() {
        photos::selectPhotos(photos::openMoments(), {8});
        photos::addSelectionToAlbum();
    }
    bool asksMoveOrCopy() { return alertTitle() == "Add photos to album"; }
    // The user's album of that title, not the stock one.
    void tapCameraRollOfUser() {
        for (PUAlbumListCell* cell in [[photos::albumList() mainCollectionView] visibleCells]) {
            PUAlbumListCellContentView* content = [cell albumListCellContentView];
            if (text([content title]) == "Camera Roll" && [content editCapabilities] == 7) tap(cell);
        }
    }
};

TEST_F(AlbumPicking, moves_or_copies_as_the_user_chose) {
    startPicking();
    const auto choose = [&](const char* album, const char* choice) {
        photos::tapAlbum(album);
        EXPECT_EQ(shownAlert(), (Texts{"sheet", "Add photos to album", "Move or copy photos to the album?",
                                       "Move", "Copy", "Cancel (cancel)"}));
        tapAlertAction(choice);
        settle();
    };
    choose("Pets", "Cancel");
    EXPECT_EQ(numbersIn("Pets"), Numbers{});
    choose("Pets", "Copy");
    EXPECT_EQ(numbersIn("Pets"), Numbers{8});
    EXPECT_EQ(hiddenNumbers(), Numbers{});
    [photos::library() dismissViewControllerAnimated:NO completion:nil];
    pick();
    choose("Zoo", "Move");
    EXPECT_EQ(numbersIn("Zoo"), Numbers{8});
    EXPECT_EQ(hiddenNumbers(), Numbers{8});
}

TEST_F(AlbumPicking, camera_roll_is_not_asked_about) {
    startPicking();
    tapCameraRollOfUser();
    EXPECT_TRUE(frontAlert() == nil);
    settle();
    EXPECT_EQ(numbersIn("Camera Roll"), Numbers{8});
    EXPECT_EQ(hiddenNumbers(), Numbers{});
}

TEST_F(AlbumPicking, locked_albums_are_unlocked_before_the_question) {
    startPicking({{"passOption", 1}}, {"Pets", "Camera Roll"});
    photos::tapAlbum("Pets");
    EXPECT_TRUE(isAskedForPassword());
    tapAlertAction("Cancel");
    settle();
    EXPECT_EQ(numbersIn("Pets"), Numbers{});

    reloadPreferences({{"passOption", 2}});
    photos::tapAlbum("Pets");
    EXPECT_TRUE(asksMoveOrCopy());
    tapAlertAction("Cancel");
    tapCameraRollOfUser();
    EXPECT_TRUE(asksMoveOrCopy()) << "after an unlock Camera Roll is an album like others";
}

// What is known of an album beyond the screen, where only the newer of the platform's two methods finds a
// cell.
struct AnchorCase {
    Release release;
    std::optional<double> version;
    bool titleIsKnown;
    bool touchPointsAtCell;
    bool replayPointsAtCell;
};

std::ostream& operator<<(std::ostream& out, const AnchorCase& each) {
    return out << releaseName(each.release) << " " << each.version.value_or(0);
}

class PadAnchor : public AlbumPicking, public testing::WithParamInterface<AnchorCase> {
  protected:
    // Closes the sheet.
    bool pointsAtCell() {
        UIPopoverPresentationController* popover = [frontAlert() popoverPresentationController];
        EXPECT_TRUE(asksMoveOrCopy());
        EXPECT_EQ([frontAlert() modalPresentationStyle], UIModalPresentationPopover);
        const bool isCell = [[popover sourceView] isKindOfClass:[PUAlbumListCellContentView class]];
        EXPECT_EQ([popover sourceRect], isCell ? [[popover sourceView] bounds] : CGRectZero);
        tapAlertAction("Cancel");
        return isCell;
    }
};

TEST_P(PadAnchor, is_looked_up_as_the_version_says) {
    change([](Conditions& conditions) {
        conditions.idiom = Idiom::pad;
        conditions.screen = {.width = 320, .height = 480};
        conditions.release = GetParam().release;
        conditions.coreFoundationVersion = GetParam().version;
    });
    startPicking({{"passOption", 1}});
    PUAlbumListViewController* list = photos::albumList();
    NSIndexPath* path = photos::pathOfAlbum(list, "Zoo");
    ASSERT_TRUE([[list mainCollectionView] cellForItemAtIndexPath:path] == nil)
        << "the album is on the screen";

    [list didSelectItemAtIndexPath:path];
    EXPECT_EQ(pointsAtCell(), GetParam().touchPointsAtCell);
    [list unlockAuthorised:0];
    EXPECT_EQ(pointsAtCell(), GetParam().replayPointsAtCell);
    [list didSelectItemAtIndexPath:[NSIndexPath indexPathForItem:0 inSection:0]];
    EXPECT_TRUE(pointsAtCell()) << "on the screen every version finds the cell";

    lockAlbums({"Zoo"});
    reload();
    [list didSelectItemAtIndexPath:path];
    EXPECT_EQ(isAskedForPassword(), GetParam().titleIsKnown);
}

INSTANTIATE_TEST_SUITE_P(Versions, PadAnchor,
                         testing::Values(AnchorCase{Release::complete, 1348.0, false, false, false},
                                         AnchorCase{Release::complete, 1348.01, false, true, false},
                                         AnchorCase{Release::complete, 1349.0, false, true, false},
                                         AnchorCase{Release::complete, 1349.01, true, true, true},
                                         AnchorCase{Release::ios10_1, {}, false, false, false},
                                         AnchorCase{Release::ios10_2, {}, false, false, false},
                                         AnchorCase{Release::ios10_3, {}, true, true, true},
                                         AnchorCase{Release::ios12_4, {}, true, true, true}));

} // namespace
} // namespace simulator::test
