// Long presses in the album list: on a cell and on the navigation bar.
#include "support/photos_fixture.h"

#include "device/clock.h"

#import "ObjectiveC/ObjectiveC.h"
#import "PhotosUI/PUNavigationController.h"

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

// A sandbox hides files and folders alike; what cannot be read must not be replaced.
TEST_F(AlbumListGestures, no_list_is_sent_where_it_cannot_be_seen_or_the_cell_has_no_title) {
    const std::string hiddenParent = "/var/mobile/Library";
    const struct {
        const char* name;
        std::vector<std::string> refused;
        const char* list; // on the disk, if any
        NSString* title;
        std::vector<json> sent;
    } cases[] = {
        {"sandbox", {hiddenParent}, "(Family)", @"Holidays", {}},
        {"no folder", {file::stateFolder}, "(Family)", @"Holidays", {{"Holidays"}}},
        {"no file", {file::lockedAlbums}, "(Family)", @"Holidays", {{"Holidays"}}},
        {"damaged", {}, "{{{", @"Holidays", {{"Holidays"}}},
        {"no title", {}, "{{{", nil, {}},
    };
    openList({"Family"});
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        change([](Conditions& conditions) { conditions.faults.missing.clear(); });
        device().writeFile(file::lockedAlbums, each.list);
        change([&](Conditions& conditions) { conditions.faults.missing = each.refused; });
        [contentView("Holidays") setTitle:each.title];
        press();
        EXPECT_EQ(takeSavedLists(), each.sent) << "long press";
        [contentView("Holidays") setTitle:each.title];
        [contentView("Holidays") lockAlbum];
        const bool sendsWithoutList = each.title != nil && each.refused != std::vector{hiddenParent};
        EXPECT_EQ(takeSavedLists(), std::vector<json>(sendsWithoutList ? 1 : 0)) << "lock button";
        [photos::albumList() viewWillAppear:NO];
        const bool startsList = each.sent.size() == 1 && !each.refused.empty();
        EXPECT_EQ(takeSavedLists(), std::vector<json>(startsList ? 1 : 0, json::array())) << "appearance";
        reload();
    }
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

// Below a list that was pushed and left again, and may be gone.
class BarOfALeftList : public PhotosTest, public testing::WithParamInterface<Release> {};

TEST_P(BarOfALeftList, may_be_pressed) {
    change([](Conditions& conditions) { conditions.release = GetParam(); });
    start(host::photos);
    id left = nil;
    @autoreleasepool {
        UIViewController* root = [[[UIViewController alloc] init] autorelease];
        PUNavigationController* navigation =
            [[[PUNavigationController alloc] initWithRootViewController:root] autorelease];
        showRootViewController(navigation);
        @autoreleasepool {
            PUAlbumListViewController* list = [[[PUAlbumListViewController alloc] init] autorelease];
            objc_initWeak(&left, list);
            [navigation pushViewController:list animated:NO];
            layOutScreen();
            [navigation popViewControllerAnimated:NO];
            layOutScreen();
        }
        // Only where recognisers neither own their targets nor forget them the list is kept, as long as they
        // are.
        EXPECT_EQ([objc_loadWeakRetained(&left) autorelease] != nil, GetParam() == Release::ios8_4);
        longPress([navigation navigationBar], 1.1);
        showRootViewController([[[UIViewController alloc] init] autorelease]);
    }
    EXPECT_TRUE([objc_loadWeakRetained(&left) autorelease] == nil);
    objc_destroyWeak(&left);
}

INSTANTIATE_TEST_SUITE_P(Releases, BarOfALeftList,
                         testing::Values(Release::ios8_4, Release::ios9_3, Release::ios12_4));

} // namespace
} // namespace simulator::test
