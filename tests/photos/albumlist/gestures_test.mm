// Long presses in the album list: on a cell and on the navigation bar.
#include "support/photos_fixture.h"

#include "device/clock.h"

// A press whose state a test chooses.
@interface FakePress : UILongPressGestureRecognizer {
  @public
    UIGestureRecognizerState fakeState;
    UIView* pressedView; // not retained
}
@end

@implementation FakePress

- (UIGestureRecognizerState)state {
    return fakeState;
}

- (UIView*)view {
    return pressedView;
}

@end

namespace simulator::test {
namespace {

constexpr UIGestureRecognizerState allStates[] = {
    UIGestureRecognizerStatePossible, UIGestureRecognizerStateBegan,     UIGestureRecognizerStateChanged,
    UIGestureRecognizerStateEnded,    UIGestureRecognizerStateCancelled, UIGestureRecognizerStateFailed};

class AlbumListGestures : public PhotosTest {
  protected:
    void openList(const Texts& locked) {
        openAlbumList({}, locked);
        recordRequests();
    }
    void press(UIGestureRecognizerState state = UIGestureRecognizerStateBegan) {
        [photos::albumList() handleLongPress:recognizer(state)];
    }
    FakePress* recognizer(UIGestureRecognizerState state) {
        FakePress* press = [[[FakePress alloc] init] autorelease];
        press->fakeState = state;
        press->pressedView = photos::albumCell(photos::albumList(), "Holidays");
        return press;
    }
};

TEST_F(AlbumListGestures, press_toggles_the_lock_outside_edit_mode) {
    openList({"Family"});
    for (const bool isEditing : {false, true})
        for (const int passOption : {0, 1, 2})
            for (const bool isLocked : {false, true})
                for (const UIGestureRecognizerState state : allStates) {
                    SCOPED_TRACE(testing::Message() << isEditing << passOption << isLocked << state);
                    photos::setEditing(isEditing);
                    reloadPreferences({{"passOption", passOption}});
                    lockAlbums(isLocked ? Texts{"Holidays", "Family"} : Texts{"Family"});
                    const std::size_t ticks = hapticTicks();
                    press(state);

                    const bool counts = state <= UIGestureRecognizerStateBegan && !isEditing;
                    const bool asks = counts && isLocked && passOption == 1;
                    const json toggled = isLocked ? json{"Family"} : json{"Family", "Holidays"};
                    EXPECT_EQ(takeSavedLists(), std::vector<json>(counts && !asks ? 1 : 0, toggled));
                    EXPECT_EQ(isAskedForPassword(), asks);
                    // The replay of a press that was authorised ticks a second time.
                    const std::size_t presses = isLocked && !asks ? 2 : 1;
                    EXPECT_EQ(hapticTicks(), ticks + (counts ? presses : 0));
                    if (frontAlert()) tapAlertAction("Cancel");
                }
}

TEST_F(AlbumListGestures, stored_press_outlives_its_caller) {
    openList({"Holidays"});
    @autoreleasepool {
        press();
    }
    EXPECT_EQ(takeSavedLists(), std::vector<json>{json::array()});
}

TEST_F(AlbumListGestures, press_starts_a_missing_list_and_keeps_what_is_no_title) {
    openList({"Family"});
    device().remove(file::lockedAlbums);
    press();
    EXPECT_EQ(takeSavedLists(), std::vector<json>{json::array({"Holidays"})});
    device().writePropertyList(file::lockedAlbums, {1, {{"a", "b"}}, "Family"});
    press();
    EXPECT_EQ(takeSavedLists(), std::vector<json>({{1, {{"a", "b"}}, "Family", "Holidays"}}));
}

TEST_F(AlbumListGestures, a_device_without_haptic_engine_locks_all_the_same) {
    change([](Conditions& conditions) {
        conditions.hapticEngine = false;
        conditions.release = Release::ios8_4;
    });
    openList({"Family"});
    press();
    EXPECT_EQ(takeSavedLists().size(), 1U);
}

TEST_F(AlbumListGestures, list_is_reloaded_at_once_and_half_a_second_later) {
    useManualClock();
    openList({"Family"});
    library().addAlbum("New");
    press();
    EXPECT_TRUE(lists("New"));
    library().addAlbum("Newer");
    clock().advance(0.49);
    EXPECT_FALSE(lists("Newer"));
    clock().advance(0.02);
    EXPECT_TRUE(lists("Newer"));
}

TEST_F(AlbumListGestures, press_on_the_bar_reloads_when_it_begins) {
    useManualClock();
    openList({"Family"});
    library().addAlbum("New");
    for (const UIGestureRecognizerState state : allStates) {
        if (state == UIGestureRecognizerStateBegan) continue;
        [photos::albumList() handleHiddenPress:recognizer(state)];
        EXPECT_FALSE(lists("New")) << state;
    }
    longPress([[photos::albumList() navigationController] navigationBar], 1.1);
    EXPECT_TRUE(lists("New"));
}

} // namespace
} // namespace simulator::test
