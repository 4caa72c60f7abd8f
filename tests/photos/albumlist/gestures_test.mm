// Long presses in the album list: on a cell and on the navigation bar.
#include "support/photos_fixture.h"

#include "device/clock.h"

#include <gmock/gmock.h>

namespace simulator::test {
namespace {

using testing::ElementsAre;
using Titles = std::vector<std::string>;

constexpr UIGestureRecognizerState allStates[] = {
    UIGestureRecognizerStatePossible, UIGestureRecognizerStateBegan,     UIGestureRecognizerStateChanged,
    UIGestureRecognizerStateEnded,    UIGestureRecognizerStateCancelled, UIGestureRecognizerStateFailed};

class AlbumListGestures : public PhotosTest {
  protected:
    void openList(const nlohmann::json& preferences, const Titles& locked) {
        PhotosTest::openAlbumList(preferences, locked);
        m_recorder = recordRequests();
    }
    void press(const std::string& title, UIGestureRecognizerState state) {
        [photos::albumList() handleLongPress:recognizer(title, state)];
    }
    FakePress* recognizer(const std::string& title, UIGestureRecognizerState state) {
        FakePress* press = [[[FakePress alloc] init] autorelease];
        press->fakeState = state;
        press->pressedView = photos::albumCell(photos::albumList(), title);
        return press;
    }
    // The lists that were sent to be written since the last call.
    std::vector<nlohmann::json> takeSavedLists(std::size_t count) {
        waitForRequests(m_recorder, count);
        std::vector<nlohmann::json> lists;
        for (const auto& request : m_recorder->requests) {
            EXPECT_EQ(request.at("path"), file::lockedAlbums);
            lists.push_back(request.at("array"));
        }
        m_recorder->requests.clear();
        return lists;
    }

    RequestRecorder* m_recorder = nil;
};

struct PressCase {
    bool isEditing;
    bool isLocked;
    int passOption;
    Asked expected;
};

std::ostream& operator<<(std::ostream& out, const PressCase& each) {
    return out << (each.isEditing ? "editing " : "") << (each.isLocked ? "locked " : "") << each.passOption;
}

TEST_F(AlbumListGestures, press_toggles_the_lock_once_it_is_allowed) {
    constexpr PressCase cases[] = {
        {false, false, 0, Asked::carriedOn},  {false, false, 1, Asked::carriedOn},
        {false, false, 2, Asked::carriedOn},  {false, true, 0, Asked::carriedOn},
        {false, true, 1, Asked::forPassword}, {false, true, 2, Asked::carriedOn},
        {true, false, 0, Asked::nothing},     {true, false, 2, Asked::nothing},
        {true, true, 0, Asked::nothing},      {true, true, 1, Asked::nothing},
        {true, true, 2, Asked::nothing},
    };
    openList({}, {"Family"});
    for (const PressCase& each : cases) {
        reloadPreferences({{"passOption", each.passOption}});
        photos::setEditing(each.isEditing);
        for (const UIGestureRecognizerState state : allStates) {
            SCOPED_TRACE(testing::Message() << each << " state " << state);
            const bool counts = state <= UIGestureRecognizerStateBegan;
            const Asked expected = counts ? each.expected : Asked::nothing;
            lockAlbums(each.isLocked ? Titles{"Holidays", "Family"} : Titles{"Family"});
            const std::size_t ticks = hapticTicks();

            press("Holidays", state);
            EXPECT_EQ(isAskedForPassword(), expected == Asked::forPassword);
            const auto saved = takeSavedLists(expected == Asked::carriedOn ? 1 : 0);
            if (!saved.empty())
                EXPECT_EQ(saved[0], (each.isLocked ? Titles{"Family"} : Titles{"Family", "Holidays"}));
            // With Touch ID the replay ticks a second time.
            EXPECT_EQ(hapticTicks() > ticks, expected != Asked::nothing);
            if (frontAlert()) tapAlertAction("Cancel");
        }
    }
}

TEST_F(AlbumListGestures, failed_unlock_changes_nothing_and_is_asked_again) {
    change(
        [](Conditions& conditions) { conditions.biometricOutcome = BiometricOutcome::refusedWithoutError; });
    openList({}, {"Holidays"});
    for (int round = 0; round < 2; ++round) {
        press("Holidays", UIGestureRecognizerStateBegan);
        takeSavedLists(0);
    }
    change([](Conditions& conditions) { conditions.biometricOutcome = BiometricOutcome::success; });
    press("Holidays", UIGestureRecognizerStateBegan);
    EXPECT_THAT(takeSavedLists(1), ElementsAre(nlohmann::json::array()));
    change(
        [](Conditions& conditions) { conditions.biometricOutcome = BiometricOutcome::refusedWithoutError; });
    press("Holidays", UIGestureRecognizerStateBegan);
    takeSavedLists(0); // one authorisation does not serve twice
}

TEST_F(AlbumListGestures, stored_press_outlives_its_caller) {
    openList({}, {"Holidays"});
    @autoreleasepool {
        [photos::albumList() handleLongPress:recognizer("Holidays", UIGestureRecognizerStateBegan)];
    }
    EXPECT_THAT(takeSavedLists(1), ElementsAre(nlohmann::json::array()));
}

TEST_F(AlbumListGestures, locking_without_a_list_starts_a_new_one) {
    openList({}, {"Family"});
    device().remove(file::lockedAlbums);
    press("Holidays", UIGestureRecognizerStateBegan);
    EXPECT_THAT(takeSavedLists(1), ElementsAre(nlohmann::json{"Holidays"}));
}

TEST_F(AlbumListGestures, elements_that_are_no_titles_are_kept) {
    openList({}, {"Family"});
    device().writePropertyList(file::lockedAlbums, {1, {{"a", "b"}}, "Family"});
    press("Holidays", UIGestureRecognizerStateBegan);
    EXPECT_THAT(takeSavedLists(1), ElementsAre(nlohmann::json{1, {{"a", "b"}}, "Family", "Holidays"}));
}

TEST_F(AlbumListGestures, a_device_without_haptic_engine_locks_all_the_same) {
    change([](Conditions& conditions) {
        conditions.hapticEngine = false;
        conditions.release = Release::ios8_4;
    });
    openList({}, {"Family"});
    press("Holidays", UIGestureRecognizerStateBegan);
    takeSavedLists(1);
}

TEST_F(AlbumListGestures, overlay_comes_and_goes_with_a_users_presses) {
    PhotosTest::openAlbumList();
    startSpringBoard();
    for (const bool locks : {true, false}) {
        longPress(photos::albumCell(photos::albumList(), "Holidays"), 1.0);
        waitFor([&] {
            layOutScreen();
            return (overlay("Holidays") != nil) == locks;
        });
        EXPECT_EQ(lockedAlbums(), locks ? Titles{"Holidays"} : Titles());
    }
}

TEST_F(AlbumListGestures, list_is_reloaded_at_once_and_half_a_second_later) {
    change([](Conditions& conditions) { conditions.manualClock = true; });
    openList({}, {"Family"});
    library().addAlbum("New");
    press("Holidays", UIGestureRecognizerStateBegan);
    EXPECT_TRUE(lists("New"));
    library().addAlbum("Newer");
    clock().advance(0.49);
    EXPECT_FALSE(lists("Newer"));
    clock().advance(0.02);
    EXPECT_TRUE(lists("Newer"));
}

TEST_F(AlbumListGestures, press_on_the_bar_reloads_when_it_begins) {
    openList({}, {"Family"});
    library().addAlbum("New");
    for (const UIGestureRecognizerState state : allStates) {
        if (state == UIGestureRecognizerStateBegan) continue;
        [photos::albumList() handleHiddenPress:recognizer("Holidays", state)];
        EXPECT_FALSE(lists("New")) << state;
    }
    longPress([[photos::albumList() navigationController] navigationBar], 1.1);
    EXPECT_TRUE(lists("New"));
}

} // namespace
} // namespace simulator::test
