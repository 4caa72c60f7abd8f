// The two buttons of an album's cell: locking, moving, and the cell's own way of unlocking.
#include "support/photos_fixture.h"

#include "device/clock.h"

#include <gmock/gmock.h>

#include <future>

namespace simulator::test {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;
using Titles = std::vector<std::string>;

class AlbumCell : public PhotosTest {
  protected:
    AlbumCell() {
        change([](Conditions& conditions) {
            conditions.manualClock = true;
            conditions.screen.height = 2000;
        });
    }
    void openInEditMode(const json& preferences = {}, const Titles& locked = {}) {
        openAlbumList(preferences, locked);
        photos::setEditing(true);
        reload();
    }
    void tapButton(const std::string& title, NSInteger tag) {
        UIView* view = button(title, tag);
        ASSERT_TRUE(view != nil) << title << " has no button " << tag;
        EXPECT_TRUE(tap(view) == view) << "the button cannot be touched";
    }
};

#pragma mark Appearance

TEST_F(AlbumCell, capabilities_of_plain_stock_albums_become_five) {
    openAlbumList();
    layOutScreen();
    EXPECT_EQ([contentView("Camera Roll") editCapabilities], 5U);
    EXPECT_EQ([contentView("Videos") editCapabilities], 5U);
    EXPECT_EQ([contentView("Holidays") editCapabilities], 7U);
    for (const NSUInteger kept : {1U, 2U, 3U, 6U}) {
        [contentView("Holidays") setEditCapabilities:kept];
        [contentView("Holidays") layoutSubviews];
        EXPECT_EQ([contentView("Holidays") editCapabilities], kept);
    }
}

struct FontCase {
    json preferences;
    double title;
    double subtitle;
};

TEST_F(AlbumCell, fonts_follow_the_settings) {
    constexpr double stockTitle = 15;
    constexpr double stockSubtitle = 12;
    const FontCase cases[] = {
        {json::object(), 14, 14},
        {{{"layoutFontSize", 15}}, stockTitle, stockSubtitle},
        {{{"layoutFontSize", 9}}, 9, 9},
        {{{"layoutFontSize", 0}}, 14, 14},
        {{{"layoutShowTitle", false}}, 0, 14},
        {{{"layoutShowSubtitle", false}}, 14, 0},
        {{{"layoutFontSize", 15}, {"layoutShowTitle", false}}, 0, stockSubtitle},
        {{{"layoutFontSize", 15}, {"layoutShowSubtitle", false}}, stockTitle, 0},
        {{{"layoutFontSize", 0}, {"layoutShowTitle", false}, {"layoutShowSubtitle", false}}, 0, 0},
        {{{"enabled", false}, {"layoutFontSize", 20}}, 20, 20},
    };
    openAlbumList();
    PUAlbumListCellContentView* content = contentView("Holidays");
    for (const FontCase& each : cases) {
        SCOPED_TRACE(each.preferences.dump());
        reloadPreferences(each.preferences);
        [[content _titleTextField] setFont:[UIFont systemFontOfSize:stockTitle]];
        [[content _subtitleLabel] setFont:[UIFont systemFontOfSize:stockSubtitle]];
        [content setNeedsLayout];
        [content layoutIfNeeded];
        EXPECT_EQ([[[content _titleTextField] font] pointSize], each.title);
        EXPECT_EQ([[[content _subtitleLabel] font] pointSize], each.subtitle);
    }
}

TEST_F(AlbumCell, buttons_take_one_tap_and_are_made_once) {
    openInEditMode();
    for (const NSInteger tag : {tag::moveButton, tag::lockButton}) {
        UIView* made = button("Holidays", tag);
        EXPECT_TRUE([made isKindOfClass:[UIImageView class]]);
        EXPECT_TRUE([made isUserInteractionEnabled]);
        ASSERT_EQ([[made gestureRecognizers] count], 1U);
        auto taps = static_cast<UITapGestureRecognizer*>([[made gestureRecognizers] firstObject]);
        EXPECT_EQ([taps numberOfTapsRequired], 1U);
        EXPECT_TRUE([taps delegate] == contentView("Holidays"));
        [contentView("Holidays") createButtons];
        EXPECT_TRUE(button("Holidays", tag) == made);
    }
}

TEST_F(AlbumCell, delete_button_is_shown_on_the_users_albums_only) {
    openInEditMode();
    EXPECT_FALSE([[contentView("Holidays") _deleteButton] isHidden]);
    [[contentView("Holidays") _deleteButton] setHidden:YES];
    [contentView("Holidays") createButtons];
    EXPECT_FALSE([[contentView("Holidays") _deleteButton] isHidden]);

    UIButton* ofStockAlbum = [contentView("Camera Roll") _deleteButton];
    [button("Camera Roll", tag::lockButton) setFrame:CGRectZero];
    [ofStockAlbum layoutSubviews];
    EXPECT_TRUE([ofStockAlbum isHidden]);
    EXPECT_EQ([button("Camera Roll", tag::lockButton) frame], CGRectMake(0, 10, 22, 22));
}

TEST_F(AlbumCell, shows_delete_buttons_while_enabled) {
    openAlbumList();
    [contentView("Holidays") setEditCapabilities:2];
    EXPECT_TRUE([contentView("Holidays") showsDeleteButtonWhenEditing]);
    reloadPreferences({{"enabled", false}});
    EXPECT_FALSE([contentView("Holidays") showsDeleteButtonWhenEditing]);
}

#pragma mark Locking and unlocking

TEST_F(AlbumCell, lock_button_locks_without_question) {
    openInEditMode({{"passOption", 1}}, {"Family"});
    RequestRecorder* recorder = recordRequests();
    for (const char* title : {"Holidays", "Camera Roll"}) {
        library().addAlbum(std::string("after ") + title);
        const std::size_t ticks = hapticTicks();
        tapButton(title, tag::lockButton);
        waitForRequests(recorder, 1);
        EXPECT_THAT(recorder->requests, ElementsAre(json{{"id", "com.apple.mobileslideshow"},
                                                         {"array", {"Family", title}},
                                                         {"path", file::lockedAlbums}}));
        EXPECT_EQ(hapticTicks(), ticks + 1);
        EXPECT_TRUE(lists(std::string("after ") + title)) << "the list was not reloaded";
        layOutScreen();
        recorder->requests.clear();
    }
}

TEST_F(AlbumCell, without_a_list_the_request_holds_none) {
    openInEditMode({}, {"Family"});
    RequestRecorder* recorder = recordRequests();
    device().remove(file::lockedAlbums);
    tapButton("Holidays", tag::lockButton);
    waitForRequests(recorder, 1);
    EXPECT_THAT(recorder->requests,
                ElementsAre(json{{"id", "com.apple.mobileslideshow"}, {"path", file::lockedAlbums}}));
}

enum class Action { removeLock, moveAlbum };

class CellUnlocking : public AlbumCell, public testing::WithParamInterface<Action> {
  protected:
    void openLocked() {
        openInEditMode({{"passOption", 1}}, {"Family", "Holidays"});
        m_recorder = recordRequests();
    }
    void perform() {
        tapButton("Holidays", GetParam() == Action::removeLock ? tag::lockButton : tag::moveButton);
    }
    Asked result() {
        if (isAskedForPassword()) return Asked::forPassword;
        const bool isDone =
            GetParam() == Action::removeLock ? !m_recorder->requests.empty() : alertTitle() == "Move Album";
        return isDone ? Asked::carriedOn : Asked::nothing;
    }
    // The grant that a move leaves is used up, so that the next case asks again.
    void startAgain() {
        if (frontAlert()) tapAlertAction("Cancel");
        reloadPreferences({{"passOption", 2}});
        m_recorder->requests.clear();
        [contentView("Holidays") lockAlbum];
        waitForRequests(m_recorder, 1);
        m_recorder->requests.clear();
        clock().advance(2);
        layOutScreen();
    }

    RequestRecorder* m_recorder = nil;
};

struct AskCase {
    int passOption;
    BiometricOutcome outcome;
    Asked expected;
};

TEST_P(CellUnlocking, asks_as_the_setting_and_the_owner_say) {
    constexpr AskCase cases[] = {
        {0, BiometricOutcome::success, Asked::carriedOn},
        {0, BiometricOutcome::failed, Asked::nothing},
        {0, BiometricOutcome::userCancel, Asked::nothing},
        {0, BiometricOutcome::userFallback, Asked::forPassword},
        {0, BiometricOutcome::notAvailable, Asked::forPassword},
        {0, BiometricOutcome::refusedWithoutError, Asked::nothing},
        {1, BiometricOutcome::success, Asked::forPassword},
        {2, BiometricOutcome::failed, Asked::carriedOn},
        {-1, BiometricOutcome::failed, Asked::carriedOn},
        {1, BiometricOutcome::success, Asked::forPassword},
    };
    openLocked();
    std::size_t evaluations = 0;
    for (const AskCase& each : cases) {
        SCOPED_TRACE(testing::Message() << each.passOption << " outcome " << static_cast<int>(each.outcome));
        startAgain();
        change([&](Conditions& conditions) { conditions.biometricOutcome = each.outcome; });
        reloadPreferences({{"passOption", each.passOption}});
        perform();
        const bool asksAtOnce = each.passOption != 0 || each.outcome == BiometricOutcome::notAvailable;
        if (asksAtOnce) EXPECT_EQ(isAskedForPassword(), each.expected == Asked::forPassword);
        if (each.expected == Asked::nothing)
            settle();
        else
            host().runUntil([&] { return result() == each.expected; });
        EXPECT_EQ(result(), each.expected);
        if (!asksAtOnce) ++evaluations;
        EXPECT_EQ(unlockReasons(), Titles(evaluations, "Holidays needs to be unlocked."));
    }
}

struct PasswordCase {
    std::optional<std::string> stored;
    bool isUnreadable;
    const char* typed;
    Asked expected;
    Titles banners;
};

TEST_P(CellUnlocking, goes_on_after_a_right_or_missing_password) {
    const PasswordCase cases[] = {
        {std::nullopt, false, "any", Asked::carriedOn, {"No password set"}},
        {std::nullopt, false, "", Asked::carriedOn, {"No password set"}},
        {"secret", false, "secret", Asked::carriedOn, {}},
        {"secret", false, "Secret", Asked::nothing, {"Incorrect password."}},
        {"secret", false, "", Asked::nothing, {"Incorrect password."}},
        {"secret\n", false, "secret", Asked::nothing, {"Incorrect password."}},
        {"", false, "", Asked::carriedOn, {}},
        {"secret", true, "wrong", Asked::carriedOn, {"No password set"}},
        {"\xff\xfe\xfd", false, "wrong", Asked::carriedOn, {"No password set"}},
    };
    openLocked();
    for (const PasswordCase& each : cases) {
        SCOPED_TRACE(testing::Message() << each.stored.value_or("(none)") << " typed " << each.typed);
        startAgain();
        setPassword(each.stored);
        change([&](Conditions& conditions) {
            conditions.faults.unreadable.clear();
            if (each.isUnreadable) conditions.faults.unreadable.push_back(file::password);
        });
        reloadPreferences({{"passOption", 1}});
        perform();
        ASSERT_TRUE(isAskedForPassword());
        EXPECT_TRUE([[[frontAlert() textFields] firstObject] isSecureTextEntry]);
        answerPassword(each.typed);
        EXPECT_EQ(bannerTexts(), each.banners);
        if (each.expected == Asked::nothing)
            settle();
        else
            host().runUntil([&] { return result() == each.expected; });
        EXPECT_EQ(result(), each.expected);
    }
}

INSTANTIATE_TEST_SUITE_P(Actions, CellUnlocking, testing::Values(Action::removeLock, Action::moveAlbum),
                         [](const auto& info) {
                             return info.param == Action::removeLock ? "remove_lock" : "move_album";
                         });

TEST_F(AlbumCell, unlocking_takes_the_title_off_the_list_once) {
    openInEditMode({{"passOption", 2}}, {"Family", "Holidays", "Work"});
    RequestRecorder* recorder = recordRequests();
    tapButton("Holidays", tag::lockButton);
    waitForRequests(recorder, 1);
    EXPECT_EQ(recorder->requests.at(0).at("array"), (Titles{"Family", "Work"}));

    layOutScreen();
    reloadPreferences({{"passOption", 1}});
    tapButton("Holidays", tag::lockButton);
    EXPECT_TRUE(isAskedForPassword()) << "one authorisation served twice";
}

// The grant of a move stays for the next action that looks at it.
TEST_F(AlbumCell, move_of_a_locked_album_leaves_the_next_unlock_without_question) {
    openInEditMode({{"passOption", 2}}, {"Family", "Holidays"});
    RequestRecorder* recorder = recordRequests();
    tapButton("Holidays", tag::moveButton);
    EXPECT_EQ(alertTitle(), "Move Album");
    tapAlertAction("Cancel");

    reloadPreferences({{"passOption", 1}});
    tapButton("Family", tag::lockButton);
    EXPECT_TRUE(frontAlert() == nil);
    waitForRequests(recorder, 1);
    EXPECT_EQ(recorder->requests.at(0).at("array"), Titles{"Holidays"});
}

TEST_F(AlbumCell, grant_of_an_unknown_purpose_opens_one_album) {
    openAlbumList({{"passOption", 1}}, {"Holidays"});
    [contentView("Holidays") unlockAuthorised:5];
    EXPECT_TRUE(frontAlert() == nil);
    photos::tapAlbum("Holidays");
    EXPECT_TRUE(hasOpenedAlbum());
    goBack();
    photos::tapAlbum("Holidays");
    EXPECT_TRUE(isAskedForPassword());
}

#pragma mark Moving

TEST_F(AlbumCell, move_sheet_offers_both_directions) {
    openInEditMode();
    tapButton("Holidays", tag::moveButton);
    const json expected = {{"title", "Move Album"},
                           {"message", "Copy album photos back to the camera roll or move them out?"},
                           {"style", "actionSheet"},
                           {"actions",
                            {{{"title", "Copy to camera roll"}, {"style", "default"}, {"enabled", true}},
                             {{"title", "Move out of camera roll"}, {"style", "default"}, {"enabled", true}},
                             {{"title", "Cancel"}, {"style", "cancel"}, {"enabled", true}}}},
                           {"textFields", json::array()},
                           {"anchor", nullptr}};
    EXPECT_EQ(viewTreeAsJson().at("alert"), expected);
    tapAlertAction("Cancel");
    settle();
    EXPECT_THAT(bannerTexts(), IsEmpty());
    EXPECT_FALSE(isHidden(0));
}

TEST_F(AlbumCell, move_sheet_points_at_the_cell_on_a_pad) {
    change([](Conditions& conditions) { conditions.idiom = Idiom::pad; });
    openInEditMode();
    tapButton("Holidays", tag::moveButton);
    UIPopoverPresentationController* popover = [frontAlert() popoverPresentationController];
    ASSERT_TRUE([[popover sourceView] isKindOfClass:[PUAlbumListCellContentView class]]);
    EXPECT_EQ(text([static_cast<PUAlbumListCellContentView*>([popover sourceView]) title]), "Holidays");
    EXPECT_EQ([popover sourceRect], [[popover sourceView] bounds]);
}

struct MoveCase {
    const char* name;
    const char* title; // of the cell when the sheet is shown
    const char* choice;
    std::vector<std::size_t> hiddenBefore;
    std::vector<std::size_t> hiddenAfter;
    const char* running; // null: there is nothing to do
    const char* finished;
};

std::ostream& operator<<(std::ostream& out, const MoveCase& each) { return out << each.name; }

class AlbumMove : public AlbumCell {
  protected:
    UIActivityIndicatorView* spinner() {
        for (UIView* view in [rootView() subviews])
            if ([view isKindOfClass:[UIActivityIndicatorView class]])
                return static_cast<UIActivityIndicatorView*>(view);
        return nil;
    }
    std::vector<std::size_t> hiddenNumbers() {
        std::vector<std::size_t> hidden;
        for (std::size_t number = 0; number < 10; ++number)
            if (isHidden(number)) hidden.push_back(number);
        return hidden;
    }
};

class AlbumMoveCases : public AlbumMove, public testing::WithParamInterface<MoveCase> {};

constexpr const char* copyBack = "Copy to camera roll";
constexpr const char* moveOut = "Move out of camera roll";

TEST_P(AlbumMoveCases, hides_or_shows_the_photos_and_says_so) {
    hide(GetParam().hiddenBefore);
    openInEditMode({}, {"Family"});
    [contentView("Holidays") setTitle:string(GetParam().title)];
    tapButton("Holidays", tag::moveButton);
    tapAlertAction(GetParam().choice);

    if (GetParam().running == nullptr) {
        EXPECT_THAT(bannerTexts(), ElementsAre("No photos to move"));
        EXPECT_EQ([banners().front() frame].size.height, 45);
    } else {
        waitFor([&] { return bannerTexts() == Titles{GetParam().running, GetParam().finished}; });
        EXPECT_EQ([banners()[0] frame], CGRectMake(97.5, 970, 180, 70));
        EXPECT_EQ([banners()[1] frame], CGRectMake(97.5, 970, 180, 45));
        EXPECT_EQ([banners()[0] alpha], 0) << "the first banner is the one that goes";
        EXPECT_EQ([banners()[1] alpha], 1);
        clock().advance(0.31);
        EXPECT_EQ(bannerTexts(), Titles{GetParam().finished});
    }
    EXPECT_TRUE(spinner() == nil);
    clock().advance(0.4);
    clock().advance(1.4);
    EXPECT_THAT(bannerTexts(), IsEmpty());
    EXPECT_EQ(hiddenNumbers(), GetParam().hiddenAfter);
    EXPECT_THAT(numbersIn("Holidays"), ElementsAre(0, 1, 2));
    EXPECT_EQ(lockedAlbums(), Titles{"Family"});
}

INSTANTIATE_TEST_SUITE_P(
    Albums, AlbumMoveCases,
    testing::Values(
        MoveCase{"move_out", "Holidays", moveOut, {1}, {0, 1, 2}, "Moving photos", "Finished moving"},
        MoveCase{"copy_back", "Holidays", copyBack, {0, 1, 5}, {5}, "Returning photos", "Finished returning"},
        MoveCase{"all_are_out", "Holidays", moveOut, {0, 1, 2}, {0, 1, 2}, nullptr, nullptr},
        MoveCase{"none_is_out", "Holidays", copyBack, {5}, {5}, nullptr, nullptr},
        MoveCase{"empty_album", "Pets", moveOut, {}, {}, nullptr, nullptr},
        MoveCase{"missing_album", "Gone", moveOut, {}, {}, nullptr, nullptr},
        MoveCase{"missing_album_back", "Gone", copyBack, {0}, {0}, nullptr, nullptr}),
    [](const auto& info) { return info.param.name; });

TEST_F(AlbumMove, spins_while_it_runs) {
    openInEditMode();
    std::promise<void> otherWork;
    const std::shared_future<void> otherWorkIsDone = otherWork.get_future().share();
    [[PHPhotoLibrary sharedPhotoLibrary]
           performChanges:^{
               otherWorkIsDone.wait();
           }
        completionHandler:nil];
    tapButton("Holidays", tag::moveButton);
    tapAlertAction(moveOut);
    waitFor([&] { return spinner() != nil; });
    EXPECT_EQ(bannerTexts(), Titles{"Moving photos"});
    EXPECT_EQ([banners().front() alpha], 1);
    EXPECT_TRUE([spinner() isAnimating]);
    EXPECT_EQ([spinner() center].x, 187.5);
    EXPECT_EQ([spinner() center].y, 1018);
    EXPECT_EQ([spinner() activityIndicatorViewStyle], UIActivityIndicatorViewStyleWhite);
    EXPECT_TRUE([spinner() hidesWhenStopped]);
    EXPECT_FALSE([spinner() isOpaque]);
    EXPECT_EQ([[spinner() layer] cornerRadius], 5);
    clock().advance(10);
    EXPECT_EQ(bannerTexts(), Titles{"Moving photos"}) << "the banner did not wait for the end";

    otherWork.set_value();
    waitFor([&] { return spinner() == nil; });
}

TEST_F(AlbumMove, that_is_refused_ends_its_banner) {
    openInEditMode();
    change([](Conditions& conditions) { conditions.faults.refuseLibraryChanges = true; });
    tapButton("Holidays", tag::moveButton);
    tapAlertAction(moveOut);
    waitFor([&] { return bannerTexts() == Titles{"Moving photos", "Finished moving"}; });
    clock().advance(0.4);
    EXPECT_EQ(bannerTexts(), Titles{"Finished moving"});
    EXPECT_THAT(hiddenNumbers(), IsEmpty());
}

} // namespace
} // namespace simulator::test
