#include "simulator/uikit/uikit_fixture.h"

namespace simulator::test {

namespace {

struct HitCase {
    const char* name;
    void (*change)(UIView* view);
    bool isHit;
};

class Hit : public UIKitPadTest, public testing::WithParamInterface<HitCase> {};

TEST_P(Hit, reaches_the_view_on_top_or_what_is_behind_it) {
    UIView* behind = addView(CGRectMake(0, 0, 100, 100));
    UIView* view = addView(CGRectMake(0, 0, 60, 60));
    GetParam().change(view);
    EXPECT_EQ(tap(behind), GetParam().isHit ? view : behind);
}

INSTANTIATE_TEST_SUITE_P(
    views, Hit,
    testing::Values(
        HitCase{"plain", [](UIView*) {}, true},
        HitCase{"hidden", [](UIView* view) { [view setHidden:YES]; }, false},
        HitCase{"nearly_clear", [](UIView* view) { [view setAlpha:0.009]; }, false},
        HitCase{"without_interaction", [](UIView* view) { [view setUserInteractionEnabled:NO]; }, false},
        HitCase{"at_the_far_edge", [](UIView* view) { [view setFrame:CGRectMake(0, 0, 50, 50)]; }, false}),
    [](const auto& info) { return info.param.name; });

struct GestureCase {
    const char* name;
    NSUInteger tapsRequired; // 0: a long press of two seconds
    unsigned taps;           // 0: a press
    double seconds;
    std::vector<std::string> notes;
};

class Gesture : public UIKitTest, public testing::WithParamInterface<GestureCase> {};

TEST_P(Gesture, goes_through_its_states_and_is_possible_again) {
    UIView* view = addView(CGRectMake(0, 0, 100, 100));
    UIView* inside = addView(CGRectMake(10, 10, 10, 10), view);
    const NSUInteger tapsRequired = GetParam().tapsRequired;
    Class kind = tapsRequired > 0 ? [UITapGestureRecognizer class] : [UILongPressGestureRecognizer class];
    id recognizer = [[[kind alloc] initWithTarget:listener() action:@selector(pressed:)] autorelease];
    if (tapsRequired > 0)
        [recognizer setNumberOfTapsRequired:tapsRequired];
    else
        [recognizer setMinimumPressDuration:2];
    [view addGestureRecognizer:recognizer];
    if (GetParam().taps > 0)
        tap(inside, GetParam().taps);
    else
        longPress(inside, GetParam().seconds);
    EXPECT_EQ(notes(), GetParam().notes);
    EXPECT_EQ([static_cast<UIGestureRecognizer*>(recognizer) state], UIGestureRecognizerStatePossible);
    EXPECT_TRUE([recognizer view] == view);
}

INSTANTIATE_TEST_SUITE_P(kinds, Gesture,
                         testing::Values(GestureCase{"tap", 1, 1, 0, {"state 3"}},
                                         GestureCase{"one_tap_of_two", 2, 1, 0, {}},
                                         GestureCase{"two_single_taps", 1, 2, 0, {"state 3", "state 3"}},
                                         GestureCase{"long_press", 0, 0, 2, {"state 1", "state 3"}},
                                         GestureCase{"too_short", 0, 0, 1.9, {}},
                                         GestureCase{"a_tap_is_no_press", 0, 1, 0, {}}),
                         [](const auto& info) { return info.param.name; });

} // namespace

} // namespace simulator::test
