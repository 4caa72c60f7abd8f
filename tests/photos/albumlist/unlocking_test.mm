// What is asked before a locked album is opened, deleted, moved or unlocked, in the album list and in its
// cells.
#include "support/photos_fixture.h"

#include "device/clock.h"
#include "device/process.h"
#include "support/replacing.h"

#include <gmock/gmock.h>

namespace simulator::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum class Action { open, deleteAlbum, removeLock, removeLockByButton, moveByButton };

// How a request for authorisation goes on.
enum class Asked { nothing, forPassword, carriedOn };

std::ostream& operator<<(std::ostream& out, Asked asked) {
    constexpr const char* names[] = {"asked nothing", "asked for the password", "carried on"};
    return out << names[static_cast<std::size_t>(asked)];
}

class Unlocking : public PhotosTest {
  protected:
    Unlocking() {
        useManualClock();
        useTallScreen();
    }
    void openLocked(int passOption) {
        openAlbumList({{"passOption", passOption}}, {"Family", "Holidays", "Work"});
        recordRequests();
    }
};

class EachAction : public Unlocking, public testing::WithParamInterface<Action> {
  protected:
    const bool isOfCell = GetParam() >= Action::removeLockByButton;

    void openLocked() {
        Unlocking::openLocked(1);
        if (!isOfCell && GetParam() != Action::deleteAlbum) return;
        photos::setEditing(true);
        reload();
    }
    void perform() {
        switch (GetParam()) {
        case Action::open:
            return photos::tapAlbum("Holidays");
        case Action::deleteAlbum:
            return photos::tapDeleteAlbum("Holidays");
        case Action::removeLock:
            longPress(photos::albumCell(photos::albumList(), "Holidays"), 1);
            return;
        case Action::removeLockByButton:
            return tapButton("Holidays", tag::lockButton);
        case Action::moveByButton:
            return tapButton("Holidays", tag::moveButton);
        }
    }
    // Of the action performed last; the list without the album has been sent to be written.
    Asked result() {
        const auto saved = takeSavedLists();
        if (isAskedForPassword()) return Asked::forPassword;
        const bool opensSomething =
            hasOpenedAlbum() || alertTitle() == "Delete “Holidays”" || alertTitle() == "Move Album";
        if (!opensSomething && saved != std::vector{json{"Family", "Work"}}) return Asked::nothing;
        m_hasMoved = GetParam() == Action::moveByButton;
        return Asked::carriedOn;
    }
    void startAgain() {
        goBack();
        if (m_hasMoved) { // which leaves the grant to the next action that looks at it
            reloadPreferences({{"passOption", 1}});
            tapButton("Holidays", tag::lockButton);
            EXPECT_TRUE(frontAlert() == nil);
            EXPECT_EQ(takeSavedLists().size(), 1U);
            m_hasMoved = false;
        }
        for (int second = 0; second < 4; ++second)
            clock().advance(1);
        settle();
        layOutScreen();
        EXPECT_THAT(bannerTexts(), IsEmpty());
    }

  private:
    bool m_hasMoved = false;
};

TEST_P(EachAction, is_carried_on_as_the_setting_and_the_owner_say) {
    using enum BiometricOutcome;
    constexpr struct {
        int passOption;
        BiometricOutcome outcome;
        Asked inList;
        Asked inCell;
    } cases[] = {
        {0, success, Asked::carriedOn, Asked::carriedOn},
        {0, failed, Asked::forPassword, Asked::nothing},
        {0, userCancel, Asked::forPassword, Asked::nothing},
        {0, userFallback, Asked::forPassword, Asked::forPassword},
        {0, notAvailable, Asked::forPassword, Asked::forPassword},
        {0, refusedWithoutError, Asked::nothing, Asked::nothing},
        {0, success, Asked::carriedOn, Asked::carriedOn},
        {1, success, Asked::forPassword, Asked::forPassword},
        {2, failed, Asked::carriedOn, Asked::carriedOn},
        {1, success, Asked::forPassword, Asked::forPassword},
        {-1, failed, Asked::carriedOn, Asked::carriedOn},
        {0, failed, Asked::forPassword, Asked::nothing},
    };
    openLocked();
    std::size_t evaluations = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.passOption << " outcome " << static_cast<int>(each.outcome));
        startAgain();
        change([&](Conditions& conditions) { conditions.biometricOutcome = each.outcome; });
        reloadPreferences({{"passOption", each.passOption}});
        perform();
        const bool isEvaluated = each.passOption == 0 && each.outcome != notAvailable;
        const Asked expected = isOfCell ? each.inCell : each.inList;
        if (isEvaluated || (each.passOption == 0 && !isOfCell))
            EXPECT_TRUE(frontAlert() == nil && !hasOpenedAlbum()) << "not by the main queue";
        else
            EXPECT_EQ(isAskedForPassword(), expected == Asked::forPassword);
        EXPECT_EQ(result(), expected);
        evaluations += isEvaluated ? 1 : 0;
        EXPECT_EQ(unlockReasons(), Texts(evaluations, "Holidays needs to be unlocked."));
    }
}

TEST_P(EachAction, is_carried_on_by_a_right_or_missing_password_in_the_cell_alone) {
    const Texts none = {"No password set"};
    const Texts wrong = {isOfCell ? "Incorrect password." : "Incorrect password"};
    const struct {
        std::optional<std::string> stored;
        bool isUnreadable;
        const char* typed;
        Texts banners;
    } cases[] = {
        {std::nullopt, false, "secret", none},
        {std::nullopt, false, "", none},
        {"secret", false, "secret", {}},
        {"secret", false, "Secret", wrong},
        {"secret", false, "", wrong},
        {"secret\n", false, "secret", wrong},
        {"", false, "", {}},
        {"pässwört", false, "pässwört", {}},
        {"secret", true, "wrong", none},
        {"\xff\xfe\xfd", false, "wrong", none},
    };
    openLocked();
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.stored.value_or("(none)") << " typed " << each.typed);
        startAgain();
        setPassword(each.stored);
        setUnreadable(each.isUnreadable ? file::password : nullptr);
        reloadPreferences({{"passOption", 1}});
        perform();
        EXPECT_EQ(shownAlert(), (Texts{"alert", "Unlock album", "Enter password to unlock album.",
                                       "[Password*]", "OK", "Cancel (cancel)"}));
        answerPassword(each.typed);
        EXPECT_EQ(bannerTexts(), each.banners);
        EXPECT_EQ(result(), isOfCell && each.banners != wrong ? Asked::carriedOn : Asked::nothing);
    }
    startAgain();
    perform();
    tapAlertAction("Cancel");
    EXPECT_EQ(result(), Asked::nothing);
    EXPECT_THAT(bannerTexts(), IsEmpty());
}

std::string nameOf(const testing::TestParamInfo<Action>& info) {
    constexpr const char* names[] = {"open", "delete", "remove_lock", "remove_lock_by_button",
                                     "move_by_button"};
    return names[static_cast<std::size_t>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Actions, EachAction,
                         testing::Values(Action::open, Action::deleteAlbum, Action::removeLock,
                                         Action::removeLockByButton, Action::moveByButton),
                         nameOf);

class Biometrics : public Unlocking, public testing::WithParamInterface<Release> {};

// From iOS 11 on an application that asks for a face without saying why is ended.
TEST_P(Biometrics, are_asked_where_the_device_has_them_and_the_application_may) {
    change([](Conditions& conditions) {
        conditions.release = GetParam();
        conditions.biometricOutcome = BiometricOutcome::refusedWithoutError; // asks for no password then
    });
    openLocked(0);
    std::size_t evaluations = 0;
    for (const Biometry biometry : {Biometry::none, Biometry::touchId, Biometry::faceId}) {
        change([&](Conditions& conditions) { conditions.biometry = biometry; });
        for (const bool describesUsage : {false, true}) {
            setUsageDescriptions({photoUsage});
            if (describesUsage) setUsageDescriptions({photoUsage, faceIdUsage});
            const bool mayAsk = describesUsage || GetParam() < Release::ios11_4;
            const bool isEvaluated =
                biometry == Biometry::touchId || (biometry == Biometry::faceId && mayAsk);
            for (const bool isOfCell : {false, true}) {
                SCOPED_TRACE(testing::Message() << static_cast<int>(biometry) << describesUsage << isOfCell);
                if (isOfCell)
                    [contentView("Holidays") lockAlbum];
                else
                    photos::tapAlbum("Holidays");
                settle();
                EXPECT_EQ(isAskedForPassword(), !isEvaluated);
                evaluations += isEvaluated ? 1 : 0;
                EXPECT_EQ(unlockReasons().size(), evaluations);
                EXPECT_FALSE(hasOpenedAlbum());
                goBack();
                photos::openAlbumList();
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, Biometrics,
                         testing::Values(Release::ios8_4, Release::ios9_3, Release::ios10_3, Release::ios11_4,
                                         Release::ios12_4));

NSArray* noFields(id, SEL) { return @[]; }

TEST_F(Unlocking, by_a_password_survives_an_alert_without_a_field) {
    openLocked(1);
    NSArray* (*original)(id, SEL) = nullptr;
    replaceMethod("UIAlertController", @selector(textFields), &noFields, &original);
    photos::tapAlbum("Holidays");
    tapAlertAction("OK");
    EXPECT_THAT(bannerTexts(), ElementsAre("No password set"));
}

TEST_F(Unlocking, touch_id_tells_which_album) {
    library().addAlbum("100% “us”");
    openAlbumList({}, {"100% “us”"});
    photos::tapAlbum("100% “us”");
    waitFor([&] { return hasOpenedAlbum(); });
    EXPECT_THAT(unlockReasons(), ElementsAre("100% “us” needs to be unlocked."));
}

TEST_F(Unlocking, of_an_album_asks_the_list_in_memory) {
    openLocked(1);
    photos::tapAlbum("Pets");
    EXPECT_TRUE(hasOpenedAlbum() && frontAlert() == nil) << "it is not locked";
    goBack();
    photos::albumCell(photos::albumList(), "Holidays"); // no other cell is configured while it is tapped
    lockAlbums({});
    photos::tapAlbum("Holidays");
    EXPECT_TRUE(isAskedForPassword());
}

TEST_F(Unlocking, for_an_unknown_purpose_grants_the_next_action_only) {
    openLocked(1);
    const auto expectGrant = [&] {
        EXPECT_TRUE(frontAlert() == nil && !hasOpenedAlbum());
        photos::tapAlbum("Holidays");
        EXPECT_TRUE(hasOpenedAlbum());
        goBack();
        photos::tapAlbum("Holidays");
        EXPECT_TRUE(isAskedForPassword());
        goBack();
    };
    [photos::albumList() unlockAuthorised:9];
    expectGrant();
    [contentView("Holidays") unlockAuthorised:5];
    expectGrant();
}

TEST_F(Unlocking, banner_lives_for_a_second_between_its_fades) {
    openLocked(1);
    photos::tapAlbum("Holidays");
    answerPassword("x");
    ASSERT_THAT(bannerTexts(), ElementsAre("No password set"));
    UIView* banner = banners().front();
    auto label = static_cast<UILabel*>([[banner subviews] firstObject]);
    EXPECT_EQ([banner frame], CGRectMake(97.5, 970, 180, 45));
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

} // namespace
} // namespace simulator::test
