#import "simulator/uikit/uikit_test.h"

#include "UIKit/model/ViewGeometry.h"

namespace simulator::test {

namespace {

using Geometry = UIKitTest;

TEST_F(Geometry, frame_bounds_and_center_agree_whichever_is_set) {
    UIView* view = addView(CGRectMake(10, 20, 100, 50));
    EXPECT_EQ([view bounds], CGRectMake(0, 0, 100, 50));
    EXPECT_EQ([view center], CGPointMake(60, 45));

    [view setCenter:CGPointMake(100, 100)];
    EXPECT_EQ([view frame], CGRectMake(50, 75, 100, 50));

    [view setBounds:CGRectMake(5, 6, 20, 10)];
    EXPECT_EQ([view center], CGPointMake(100, 100));
    EXPECT_EQ([view frame], CGRectMake(90, 95, 20, 10));

    [view setFrame:CGRectMake(0, 0, 40, 40)];
    EXPECT_EQ([view bounds], CGRectMake(5, 6, 40, 40));
    EXPECT_EQ([view center], CGPointMake(20, 20));
}

TEST_F(Geometry, points_convert_between_views_and_the_window) {
    UIView* outer = addView(CGRectMake(10, 20, 200, 200));
    UIView* inner = addView(CGRectMake(30, 40, 50, 50), outer);
    [outer setBounds:CGRectMake(0, 5, 200, 200)]; // scrolled
    EXPECT_EQ([inner convertPoint:CGPointMake(1, 1) toView:outer], CGPointMake(31, 41));
    EXPECT_EQ([inner convertPoint:CGPointMake(1, 1) toView:nil], CGPointMake(41, 56));
    EXPECT_EQ([inner convertPoint:CGPointMake(41, 56) fromView:nil], CGPointMake(1, 1));
    EXPECT_EQ([outer convertRect:CGRectMake(0, 0, 9, 9) toView:inner], CGRectMake(-30, -40, 9, 9));
}

struct AutoresizingCase {
    const char* name;
    unsigned long mask;
    CGRect before;
    CGRect after; // when the superview grows from 100 x 100 to 200 x 150
};

class Autoresizing : public UIKitTest, public testing::WithParamInterface<AutoresizingCase> {};

TEST_P(Autoresizing, subview_follows_the_bounds_of_its_superview) {
    UIView* superview = addView(CGRectMake(0, 0, 100, 100));
    UIView* view = addView(GetParam().before, superview);
    [view setAutoresizingMask:static_cast<UIViewAutoresizing>(GetParam().mask)];
    [superview setFrame:CGRectMake(30, 30, 200, 150)];
    EXPECT_EQ([view frame], GetParam().after);
}

TEST_P(Autoresizing, nothing_moves_when_the_superview_does_not_autoresize) {
    UIView* superview = addView(CGRectMake(0, 0, 100, 100));
    UIView* view = addView(GetParam().before, superview);
    [view setAutoresizingMask:static_cast<UIViewAutoresizing>(GetParam().mask)];
    [superview setAutoresizesSubviews:NO];
    [superview setBounds:CGRectMake(0, 0, 200, 150)];
    EXPECT_EQ([view frame], GetParam().before);
}

INSTANTIATE_TEST_SUITE_P(
    masks, Autoresizing,
    testing::Values(
        AutoresizingCase{"none", 0, CGRectMake(10, 10, 20, 20), CGRectMake(10, 10, 20, 20)},
        AutoresizingCase{"size", flexibleWidth | flexibleHeight, CGRectMake(10, 10, 80, 80),
                         CGRectMake(10, 10, 180, 130)},
        AutoresizingCase{"sticks_to_the_bottom_right", flexibleLeftMargin | flexibleTopMargin,
                         CGRectMake(70, 70, 20, 20), CGRectMake(170, 120, 20, 20)},
        AutoresizingCase{"sticks_to_the_top_left", flexibleRightMargin | flexibleBottomMargin,
                         CGRectMake(10, 10, 20, 20), CGRectMake(10, 10, 20, 20)},
        AutoresizingCase{"stays_in_the_middle",
                         flexibleLeftMargin | flexibleRightMargin | flexibleTopMargin | flexibleBottomMargin,
                         CGRectMake(40, 40, 20, 20), CGRectMake(90, 65, 20, 20)},
        AutoresizingCase{"width_and_margin_share_by_length", flexibleWidth | flexibleRightMargin,
                         CGRectMake(20, 0, 60, 10), CGRectMake(20, 0, 135, 10)},
        AutoresizingCase{"parts_without_length_share_equally", flexibleWidth | flexibleRightMargin,
                         CGRectMake(100, 0, 0, 10), CGRectMake(100, 0, 50, 10)}),
    [](const auto& info) { return info.param.name; });

TEST_F(Geometry, view_with_tag_finds_itself_first_then_any_depth) {
    UIView* outer = addView(CGRectZero);
    UIView* inner = addView(CGRectZero, outer);
    UIView* deepest = addView(CGRectZero, inner);
    [deepest setTag:7];
    EXPECT_EQ([outer viewWithTag:7], deepest);
    EXPECT_EQ([deepest viewWithTag:7], deepest);
    EXPECT_EQ([outer viewWithTag:8], nil);
    [outer setTag:7];
    EXPECT_EQ([outer viewWithTag:7], outer);
}

TEST_F(Geometry, front_and_back_change_the_order_of_subviews_and_tolerate_strangers) {
    UIView* parent = addView(CGRectZero);
    UIView* first = addView(CGRectZero, parent);
    UIView* second = addView(CGRectZero, parent);
    [parent bringSubviewToFront:first];
    EXPECT_EQ([[parent subviews] lastObject], first);
    [parent sendSubviewToBack:first];
    EXPECT_EQ([[parent subviews] firstObject], first);
    [parent bringSubviewToFront:nil];
    [parent bringSubviewToFront:screen()];
    [parent addSubview:nil];
    EXPECT_EQ([[parent subviews] count], 2U);
    [parent addSubview:first]; // once more: moves to the front
    EXPECT_EQ([[parent subviews] lastObject], first);
    EXPECT_EQ([second superview], parent);
    EXPECT_EQ([second window], window());
    [second removeFromSuperview];
    EXPECT_EQ([second superview], nil);
    EXPECT_EQ([second window], nil);
}

TEST_F(Geometry, a_view_cannot_contain_what_contains_it) {
    UIView* outer = addView(CGRectZero);
    UIView* inner = addView(CGRectZero, outer);
    EXPECT_EQ(exceptionOf([&] { [inner addSubview:outer]; }), "NSInvalidArgumentException");
}

} // namespace

} // namespace simulator::test

// Counts the layout passes and asks for another as often as told.
@interface LayoutCounter : UIView {
  @public
    int passes;
    int wanted;
}
@end

@implementation LayoutCounter

- (void)layoutSubviews {
    [super layoutSubviews];
    if (++passes < wanted) [self setNeedsLayout];
}

@end

namespace simulator::test {

namespace {

using Layout = UIKitTest;

TEST_F(Layout, runs_once_per_turn_of_the_run_loop_however_often_asked_for) {
    LayoutCounter* view = [[[LayoutCounter alloc] initWithFrame:CGRectMake(0, 0, 10, 10)] autorelease];
    [screen() addSubview:view];
    for (int i = 0; i < 5; ++i)
        [view setNeedsLayout];
    EXPECT_EQ(view->passes, 0);
    host().drain();
    EXPECT_EQ(view->passes, 1);
    [view layoutIfNeeded];
    EXPECT_EQ(view->passes, 1);
    [view setFrame:CGRectMake(0, 0, 20, 20)];
    [view layoutIfNeeded];
    EXPECT_EQ(view->passes, 2);
    [view setFrame:CGRectMake(5, 5, 20, 20)]; // moved, not resized
    [view layoutIfNeeded];
    EXPECT_EQ(view->passes, 2);
}

TEST_F(Layout, that_never_settles_raises_instead_of_hanging) {
    LayoutCounter* view = [[[LayoutCounter alloc] initWithFrame:CGRectZero] autorelease];
    view->wanted = 10;
    [view layoutIfNeeded];
    EXPECT_EQ(view->passes, 10);
    view->wanted = 1'000'000;
    [view setNeedsLayout];
    EXPECT_EQ(exceptionOf([&] { [view layoutIfNeeded]; }), "NSInternalInconsistencyException");
}

} // namespace

} // namespace simulator::test
