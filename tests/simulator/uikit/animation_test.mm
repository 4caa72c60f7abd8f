#import "simulator/uikit/uikit_test.h"

namespace simulator::test {

namespace {

using Animation = UIKitClockTest;

TEST_F(Animation, sets_final_values_at_once_and_completes_after_delay_and_duration) {
    UIView* view = addView(CGRectZero);
    Listener* noted = listener();
    [UIView animateWithDuration:0.5
        delay:0.4
        options:UIViewAnimationOptionAllowUserInteraction
        animations:^{
            [view setAlpha:0];
        }
        completion:^(BOOL finished) {
            [noted note:finished ? @"finished" : @"cut short"];
        }];
    EXPECT_EQ([view alpha], 0);
    clock().advance(0.8);
    EXPECT_TRUE(notes().empty());
    clock().advance(0.2);
    EXPECT_EQ(notes(), (std::vector<std::string>{"finished"}));
}

TEST_F(Animation, without_duration_completes_with_the_next_turn) {
    Listener* noted = listener();
    [UIView animateWithDuration:0
        animations:^{
        }
        completion:^(BOOL) {
            [noted note:@"finished"];
        }];
    EXPECT_TRUE(notes().empty());
    clock().advance(0);
    EXPECT_EQ(notes(), (std::vector<std::string>{"finished"}));
}

TEST_F(Animation, keeps_touches_from_the_views_it_moves_unless_allowed) {
    UIView* behind = addView(CGRectMake(0, 0, 100, 100));
    UIView* view = addView(CGRectMake(0, 0, 100, 100));
    const auto animate = [view](UIViewAnimationOptions options) {
        [UIView animateWithDuration:1
                              delay:0
                            options:options
                         animations:^{
                             [view setAlpha:0.5];
                         }
                         completion:nil];
    };
    animate(0);
    EXPECT_EQ(tap(view), behind);
    clock().advance(1);
    EXPECT_EQ(tap(view), view);
    animate(UIViewAnimationOptionAllowUserInteraction);
    EXPECT_EQ(tap(view), view);
}

TEST_F(Animation, needs_something_to_animate_but_no_completion) {
    [UIView animateWithDuration:0.1
                     animations:^{
                     }];
    EXPECT_EQ(clock().pendingTimers(), 0U);
    EXPECT_EQ(exceptionOf([] { [UIView animateWithDuration:0.1 animations:nil]; }),
              "NSInvalidArgumentException");
}

} // namespace

} // namespace simulator::test
