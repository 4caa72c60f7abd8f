#import "simulator/uikit/uikit_test.h"

namespace simulator::test {

namespace {

struct HitCase {
    const char* name;
    void (*change)(UIView* view);
    bool isHit;
};

class Hit : public UIKitTest, public testing::WithParamInterface<HitCase> {};

TEST_P(Hit, reaches_the_view_on_top_or_what_is_behind_it) {
    UIView* behind = addView(CGRectMake(0, 0, 100, 100));
    UIView* view = addView(CGRectMake(0, 0, 50, 50));
    GetParam().change(view);
    EXPECT_EQ(tapAt(CGPointMake(20, 20)), GetParam().isHit ? view : behind);
}

INSTANTIATE_TEST_SUITE_P(
    views, Hit,
    testing::Values(
        HitCase{"plain", [](UIView*) {}, true},
        HitCase{"hidden", [](UIView* view) { [view setHidden:YES]; }, false},
        HitCase{"nearly_clear", [](UIView* view) { [view setAlpha:0.009]; }, false},
        HitCase{"faint", [](UIView* view) { [view setAlpha:0.01]; }, true},
        HitCase{"without_interaction", [](UIView* view) { [view setUserInteractionEnabled:NO]; }, false},
        HitCase{"elsewhere", [](UIView* view) { [view setFrame:CGRectMake(60, 60, 9, 9)]; }, false},
        HitCase{"at_the_far_edge", [](UIView* view) { [view setFrame:CGRectMake(0, 0, 20, 20)]; }, false},
        HitCase{"at_the_near_edge", [](UIView* view) { [view setFrame:CGRectMake(20, 20, 9, 9)]; }, true}),
    [](const auto& info) { return info.param.name; });

using Touches = UIKitTest;

TEST_F(Touches, labels_and_image_views_let_touches_through_unless_told_otherwise) {
    UIView* behind = addView(CGRectMake(0, 0, 100, 100));
    UILabel* label = [[[UILabel alloc] initWithFrame:[behind frame]] autorelease];
    UIImageView* picture = [[[UIImageView alloc] initWithFrame:[behind frame]] autorelease];
    [screen() addSubview:label];
    [screen() addSubview:picture];
    EXPECT_EQ(tap(behind), behind);
    [label setUserInteractionEnabled:YES];
    EXPECT_EQ(tap(behind), label);
    [picture setUserInteractionEnabled:YES];
    EXPECT_EQ(tap(behind), picture);
}

TEST_F(Touches, subviews_outside_their_superview_are_out_of_reach) {
    UIView* small = addView(CGRectMake(0, 0, 10, 10));
    UIView* outside = addView(CGRectMake(20, 20, 30, 30), small);
    EXPECT_NE(tap(outside), outside);
}

TEST_F(Touches, a_view_without_a_window_is_a_clear_error) {
    UIView* view = [[[UIView alloc] initWithFrame:CGRectZero] autorelease];
    EXPECT_NE(errorOf([&] { tap(view); }), "");
}

UITapGestureRecognizer* addTaps(UIView* view, Listener* listener, NSUInteger taps,
                                SEL action = @selector(pressed:)) {
    auto* recognizer = [[[UITapGestureRecognizer alloc] initWithTarget:listener action:action] autorelease];
    [recognizer setNumberOfTapsRequired:taps];
    [view addGestureRecognizer:recognizer];
    return recognizer;
}

UILongPressGestureRecognizer* addPress(UIView* view, Listener* listener, double seconds,
                                       SEL action = @selector(pressed:)) {
    auto* recognizer = [[[UILongPressGestureRecognizer alloc] initWithTarget:listener
                                                                      action:action] autorelease];
    [recognizer setMinimumPressDuration:seconds];
    [view addGestureRecognizer:recognizer];
    return recognizer;
}

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
    UIGestureRecognizer* recognizer =
        GetParam().tapsRequired > 0 ? (UIGestureRecognizer*)addTaps(view, listener(), GetParam().tapsRequired)
                                    : addPress(view, listener(), 2);
    if (GetParam().taps > 0)
        tap(inside, GetParam().taps);
    else
        longPress(inside, GetParam().seconds);
    EXPECT_EQ(notes(), GetParam().notes);
    EXPECT_EQ([recognizer state], UIGestureRecognizerStatePossible);
    EXPECT_EQ([recognizer view], view);
}

INSTANTIATE_TEST_SUITE_P(kinds, Gesture,
                         testing::Values(GestureCase{"tap", 1, 1, 0, {"state 3"}},
                                         GestureCase{"one_tap_of_two", 2, 1, 0, {}},
                                         GestureCase{"two_taps", 2, 2, 0, {"state 3"}},
                                         GestureCase{"two_single_taps", 1, 2, 0, {"state 3", "state 3"}},
                                         GestureCase{"a_press_is_no_tap", 1, 0, 3, {}},
                                         GestureCase{"long_press", 0, 0, 2, {"state 1", "state 3"}},
                                         GestureCase{"too_short", 0, 0, 1.9, {}},
                                         GestureCase{"a_tap_is_no_press", 0, 1, 0, {}}),
                         [](const auto& info) { return info.param.name; });

TEST_F(Touches, the_action_gets_the_recognizer_and_the_place) {
    UIView* view = addView(CGRectMake(100, 100, 50, 50));
    UIGestureRecognizer* recognizer = addTaps(view, listener(), 1, @selector(tapped:));
    tapAt(CGPointMake(110, 120));
    EXPECT_EQ(listener()->lastSender, recognizer);
    EXPECT_EQ([recognizer locationInView:view], CGPointMake(10, 20));
}

TEST_F(Touches, the_shorter_of_two_presses_wins_and_shuts_the_other_out) {
    UIView* view = addView(CGRectMake(0, 0, 100, 100));
    addPress(view, listener(), 2, @selector(tapped:));
    addPress(view, listener(), 0.5);
    longPress(view, 5);
    EXPECT_EQ(notes(), (std::vector<std::string>{"state 1", "state 3"}));
}

TEST_F(Touches, disabled_and_removed_recognizers_hear_nothing) {
    UIView* view = addView(CGRectMake(0, 0, 100, 100));
    UIGestureRecognizer* disabled = addTaps(view, listener(), 1);
    UIGestureRecognizer* removed = addTaps(view, listener(), 1);
    [disabled setEnabled:NO];
    [view removeGestureRecognizer:removed];
    tap(view);
    EXPECT_TRUE(notes().empty());
    EXPECT_EQ([removed view], nil);
}

TEST_F(Touches, delegates_and_targets_are_not_retained_and_may_go) {
    UIView* view = addView(CGRectMake(0, 0, 100, 100));
    Listener* gone = [[Listener alloc] init];
    UIGestureRecognizer* recognizer = nil;
    @autoreleasepool {
        recognizer = addTaps(view, gone, 1);
        [recognizer setDelegate:gone];
        EXPECT_EQ([recognizer delegate], gone);
    }
    EXPECT_EQ([gone retainCount], 1U);
    [gone release];
    EXPECT_EQ([recognizer delegate], nil);
    tap(view); // must not touch what is gone
}

TEST_F(Touches, a_button_keeps_its_taps_from_recognizers_above_it) {
    UIView* above = addView(CGRectMake(0, 0, 100, 100));
    addTaps(above, listener(), 1);
    UIButton* button = [UIButton buttonWithType:UIButtonTypeCustom];
    [button setFrame:CGRectMake(10, 10, 30, 30)];
    [button addTarget:listener() action:@selector(tapped:) forControlEvents:UIControlEventTouchUpInside];
    [above addSubview:button];
    tap(button);
    EXPECT_EQ(notes(), (std::vector<std::string>{"tapped"}));
    EXPECT_EQ(listener()->lastSender, button);

    addTaps(button, listener(), 1); // its own recogniser takes them away
    tap(button);
    EXPECT_EQ(notes(), (std::vector<std::string>{"tapped", "state 3"}));
}

TEST_F(Touches, a_disabled_button_does_nothing) {
    UIButton* button = [UIButton buttonWithType:UIButtonTypeSystem];
    [button setFrame:CGRectMake(10, 10, 30, 30)];
    [button addTarget:listener() action:@selector(tapped:) forControlEvents:UIControlEventTouchUpInside];
    [screen() addSubview:button];
    [button setEnabled:NO];
    tap(button);
    EXPECT_TRUE(notes().empty());
}

TEST_F(Touches, a_target_is_told_once_however_often_it_is_added) {
    UIControl* control = [[[UIControl alloc] initWithFrame:CGRectMake(0, 0, 50, 50)] autorelease];
    for (int i = 0; i < 3; ++i)
        [control addTarget:listener() action:@selector(tapped:) forControlEvents:UIControlEventTouchUpInside];
    [control sendActionsForControlEvents:UIControlEventTouchUpInside];
    EXPECT_EQ(notes().size(), 1U);
    [control removeTarget:listener() action:nullptr forControlEvents:UIControlEventAllEvents];
    [control sendActionsForControlEvents:UIControlEventTouchUpInside];
    EXPECT_EQ(notes().size(), 1U);
}

TEST_F(Touches, a_switch_turns_and_tells) {
    UISwitch* control = [[[UISwitch alloc] initWithFrame:CGRectMake(10, 10, 0, 0)] autorelease];
    [control addTarget:listener() action:@selector(tapped:) forControlEvents:UIControlEventValueChanged];
    [screen() addSubview:control];
    tap(control);
    EXPECT_TRUE([control isOn]);
    EXPECT_EQ(notes().size(), 1U);
}

} // namespace

} // namespace simulator::test
