// Touching, deleting and unlocking a locked album in the album list; picking an album for photos.
#include "support/photos_fixture.h"

#include "device/clock.h"

#include <gmock/gmock.h>

namespace simulator::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum class Action { open, deleteAlbum, removeLock };

struct AskCase {
    int passOption;
    BiometricOutcome outcome;
    Asked expected;
};

constexpr AskCase askCases[] = {
    {0, BiometricOutcome::success, Asked::carriedOn},
    {0, BiometricOutcome::failed, Asked::forPassword},
    {0, BiometricOutcome::userCancel, Asked::forPassword},
    {0, BiometricOutcome::userFallback, Asked::forPassword},
    {0, BiometricOutcome::notAvailable, Asked::forPassword},
    {0, BiometricOutcome::refusedWithoutError, Asked::nothing},
    {1, BiometricOutcome::success, Asked::forPassword},
    {2, BiometricOutcome::failed, Asked::carriedOn},
    {1, BiometricOutcome::success, Asked::forPassword},
    {7, BiometricOutcome::failed, Asked::carriedOn},
    {0, BiometricOutcome::failed, Asked::forPassword},
};

struct PasswordCase {
    std::optional<std::string> stored;
    bool isUnreadable;
    const char* typed;
    std::vector<std::string> banners;
};

class AlbumListUnlocking : public PhotosTest {
  protected:
    AlbumListUnlocking() {
        change([](Conditions& conditions) { conditions.manualClock = true; });
    }
    void perform(Action action) {
        if (action == Action::open) photos::tapAlbum("Holidays");
        if (action == Action::deleteAlbum) photos::tapDeleteAlbum("Holidays");
        if (action == Action::removeLock) longPress(photos::albumCell(photos::albumList(), "Holidays"), 1);
    }
    bool wasPerformed(Action action) {
        if (action == Action::open) return hasOpenedAlbum();
        if (action == Action::deleteAlbum) return alertTitle() == "Delete “Holidays”";
        return !m_recorder->requests.empty();
    }
    Asked result(Action action) {
        if (isAskedForPassword()) return Asked::forPassword;
        return wasPerformed(action) ? Asked::carriedOn : Asked::nothing;
    }
    void openLocked(int passOption) {
        openAlbumList({{"passOption", passOption}}, {"Holidays"});
        m_recorder = recordRequests();
    }

    RequestRecorder* m_recorder = nil;
};

class EachAction : public AlbumListUnlocking, public testing::WithParamInterface<Action> {};

TEST_P(EachAction, is_carried_on_as_the_setting_and_the_owner_say) {
    openLocked(1);
    if (GetParam() == Action::deleteAlbum) photos::setEditing(true);
    for (const AskCase& each : askCases) {
        SCOPED_TRACE(testing::Message() << each.passOption << " outcome " << static_cast<int>(each.outcome));
        change([&](Conditions& conditions) { conditions.biometricOutcome = each.outcome; });
        reloadPreferences({{"passOption", each.passOption}});
        m_recorder->requests.clear();
        perform(GetParam());
        if (each.passOption == 0) EXPECT_EQ(result(GetParam()), Asked::nothing) << "not by the main queue";
        if (each.expected == Asked::nothing)
            settle();
        else
            host().runUntil([&] { return result(GetParam()) == each.expected; });
        EXPECT_EQ(result(GetParam()), each.expected);
        goBack();
    }
}

std::string nameOf(const testing::TestParamInfo<Action>& info) {
    constexpr const char* names[] = {"open", "delete", "remove_lock"};
    return names[static_cast<std::size_t>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Actions, EachAction,
                         testing::Values(Action::open, Action::deleteAlbum, Action::removeLock), nameOf);

TEST_P(EachAction, is_not_carried_on_by_any_password) {
    const PasswordCase cases[] = {
        {std::nullopt, false, "secret", {"No password set"}},
        {std::nullopt, false, "", {"No password set"}},
        {"secret", false, "secret", {}},
        {"secret", false, "Secret", {"Incorrect password"}},
        {"secret", false, "", {"Incorrect password"}},
        {"secret\n", false, "secret", {"Incorrect password"}},
        {"", false, "", {}},
        {"pässwört", false, "pässwört", {}},
        {"secret", true, "secret", {"No password set"}},
        {"\xff\xfe\xfd", false, "secret", {"No password set"}},
    };
    openLocked(1);
    if (GetParam() == Action::deleteAlbum) photos::setEditing(true);
    for (const PasswordCase& each : cases) {
        SCOPED_TRACE(testing::Message() << each.stored.value_or("(none)") << " typed " << each.typed);
        setPassword(each.stored);
        change([&](Conditions& conditions) {
            conditions.faults.unreadable.clear();
            if (each.isUnreadable) conditions.faults.unreadable.push_back(file::password);
        });
        perform(GetParam());
        ASSERT_TRUE(isAskedForPassword());
        answerPassword(each.typed);
        settle();
        EXPECT_EQ(bannerTexts(), each.banners);
        EXPECT_EQ(result(GetParam()), Asked::nothing);
        clock().advance(2);
        host().drain();
    }
}

TEST_F(AlbumListUnlocking, alert_asks_for_a_secret) {
    openLocked(1);
    photos::tapAlbum("Holidays");
    const nlohmann::json expected = {
        {"title", "Unlock album"},
        {"message", "Enter password to unlock album."},
        {"style", "alert"},
        {"actions",
         {{{"title", "OK"}, {"style", "default"}, {"enabled", true}},
          {{"title", "Cancel"}, {"style", "cancel"}, {"enabled", true}}}},
        {"textFields", {{{"text", ""}, {"placeholder", "Password"}, {"secure", true}}}},
        {"anchor", nullptr}};
    EXPECT_EQ(viewTreeAsJson().at("alert"), expected);
    tapAlertAction("Cancel");
    settle();
    EXPECT_FALSE(hasOpenedAlbum());
    EXPECT_THAT(bannerTexts(), IsEmpty());
}

TEST_F(AlbumListUnlocking, touch_id_tells_which_album) {
    library().addAlbum("100% “us”");
    openAlbumList({}, {"100% “us”"});
    photos::tapAlbum("100% “us”");
    waitFor([&] { return hasOpenedAlbum(); });
    EXPECT_THAT(unlockReasons(), ElementsAre("100% “us” needs to be unlocked."));
}

TEST_F(AlbumListUnlocking, unlocked_albums_open_without_question) {
    openLocked(1);
    photos::tapAlbum("Family");
    EXPECT_TRUE(hasOpenedAlbum());
    EXPECT_TRUE(frontAlert() == nil);
}

TEST_F(AlbumListUnlocking, selection_asks_the_list_in_memory) {
    openLocked(1);
    photos::albumCell(photos::albumList(), "Holidays"); // no other cell is configured while it is tapped
    lockAlbums({});
    photos::tapAlbum("Holidays");
    EXPECT_TRUE(isAskedForPassword());
}

TEST_F(AlbumListUnlocking, locked_album_is_left_with_the_application_until_another_is_selected) {
    openLocked(2);
    photos::tapAlbum("Holidays");
    ASSERT_TRUE(hasOpenedAlbum());
    [photos::application() enterBackground];
    EXPECT_FALSE(hasOpenedAlbum());

    [photos::application() enterForeground];
    photos::tapAlbum("Family");
    [photos::application() enterBackground];
    EXPECT_TRUE(hasOpenedAlbum());
}

TEST_F(AlbumListUnlocking, unknown_purpose_grants_the_next_action_only) {
    openLocked(1);
    [photos::albumList() unlockAuthorised:9];
    EXPECT_FALSE(hasOpenedAlbum());
    photos::tapAlbum("Holidays");
    EXPECT_TRUE(hasOpenedAlbum());
    goBack();
    photos::tapAlbum("Holidays");
    EXPECT_TRUE(isAskedForPassword());
}

TEST_F(AlbumListUnlocking, banner_lives_for_a_second_between_its_fades) {
    openLocked(1);
    photos::tapAlbum("Holidays");
    answerPassword("x");
    ASSERT_THAT(bannerTexts(), ElementsAre("No password set"));
    UIView* banner = banners().front();
    auto label = static_cast<UILabel*>([[banner subviews] firstObject]);
    EXPECT_EQ([banner frame], CGRectMake(97.5, 303.5, 180, 45));
    EXPECT_TRUE([[banner backgroundColor] isEqual:[UIColor colorWithWhite:0 alpha:0.8]]);
    EXPECT_EQ([[banner layer] cornerRadius], 15);
    EXPECT_FALSE([banner isUserInteractionEnabled]);
    EXPECT_EQ([label frame], CGRectMake(0, 0, 180, 40));
    EXPECT_EQ([label textAlignment], NSTextAlignmentCenter);
    EXPECT_TRUE([[label textColor] isEqual:[UIColor whiteColor]]);
    EXPECT_EQ([banner alpha], 1);

    clock().advance(0.31);
    clock().advance(1.28);
    EXPECT_THAT(bannerTexts(), ElementsAre("No password set"));
    EXPECT_EQ([banner alpha], 0);
    clock().advance(0.05);
    EXPECT_THAT(bannerTexts(), IsEmpty());
}

// Picking an album for the sample's ninth photo.
class AlbumPicking : public PhotosTest {
  protected:
    AlbumPicking() {
        change([](Conditions& conditions) { conditions.screen.height = 2000; });
    }
    void startPicking(const nlohmann::json& preferences = {}, const std::vector<std::string>& locked = {}) {
        library().addAlbum("Camera Roll");
        library().addAlbum("Zoo");
        if (!preferences.is_null()) writePreferences(preferences);
        lockAlbums(locked);
        start(host::photos);
        photos::selectPhotos(photos::openMoments(), {8});
        photos::addSelectionToAlbum();
    }
    bool asksMoveOrCopy() { return alertTitle() == "Add photos to album"; }
    bool isPicking() { return [photos::library() presentedViewController] != nil; }
    // The user's album of that title, not the stock one.
    void tapCameraRollOfUser() {
        for (PUAlbumListCell* cell in [[photos::albumList() mainCollectionView] visibleCells]) {
            PUAlbumListCellContentView* content = [cell albumListCellContentView];
            if (text([content title]) == "Camera Roll" && [content editCapabilities] == 7) tap(cell);
        }
    }
};

struct ChoiceCase {
    const char* choice;
    bool isAdded;
    bool isHidden;
};

class MoveOrCopy : public AlbumPicking, public testing::WithParamInterface<ChoiceCase> {};

TEST_P(MoveOrCopy, is_what_the_user_chose) {
    startPicking();
    photos::tapAlbum("Pets");
    const nlohmann::json expected = {{"title", "Add photos to album"},
                                     {"message", "Move or copy photos to the album?"},
                                     {"style", "actionSheet"},
                                     {"actions",
                                      {{{"title", "Move"}, {"style", "default"}, {"enabled", true}},
                                       {{"title", "Copy"}, {"style", "default"}, {"enabled", true}},
                                       {{"title", "Cancel"}, {"style", "cancel"}, {"enabled", true}}}},
                                     {"textFields", nlohmann::json::array()},
                                     {"anchor", nullptr}};
    EXPECT_EQ(viewTreeAsJson().at("alert"), expected);
    tapAlertAction(GetParam().choice);
    if (GetParam().isAdded) waitFor([&] { return !numbersIn("Pets").empty(); });
    if (GetParam().isHidden) waitFor([&] { return isHidden(8); });
    settle();
    EXPECT_EQ(numbersIn("Pets"),
              GetParam().isAdded ? std::vector<std::size_t>{8} : std::vector<std::size_t>());
    EXPECT_EQ(isHidden(8), GetParam().isHidden);
}

INSTANTIATE_TEST_SUITE_P(Choices, MoveOrCopy,
                         testing::Values(ChoiceCase{"Move", true, true}, ChoiceCase{"Copy", true, false},
                                         ChoiceCase{"Cancel", false, false}),
                         [](const auto& info) { return info.param.choice; });

TEST_F(AlbumPicking, camera_roll_is_not_asked_about) {
    startPicking();
    tapCameraRollOfUser();
    EXPECT_TRUE(frontAlert() == nil);
    waitFor([&] { return numbersIn("Camera Roll").size() == 1; });
    EXPECT_FALSE(isHidden(8));
}

TEST_F(AlbumPicking, locked_albums_are_unlocked_before_the_question) {
    startPicking({{"passOption", 1}}, {"Pets", "Camera Roll"});
    photos::tapAlbum("Pets");
    EXPECT_TRUE(isAskedForPassword());
    tapAlertAction("Cancel");
    EXPECT_THAT(numbersIn("Pets"), IsEmpty());

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
