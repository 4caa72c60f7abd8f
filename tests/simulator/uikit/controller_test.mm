#import "simulator/uikit/uikit_test.h"

#include "device/releases.h"

// Keeps the sizes that it is told of.
@interface TurningController : UIViewController {
  @public
    std::vector<std::string>* sizes;
}
@end

@implementation TurningController

- (void)viewWillTransitionToSize:(CGSize)size
       withTransitionCoordinator:(id<UIViewControllerTransitionCoordinator>)coordinator {
    [super viewWillTransitionToSize:size withTransitionCoordinator:coordinator];
    auto* told = sizes;
    told->push_back(std::to_string(static_cast<int>(size.width)));
    [coordinator animateAlongsideTransition:nil
                                 completion:^(id) {
                                     told->push_back("done");
                                 }];
}

@end

namespace simulator::test {

namespace {

using Texts = std::vector<std::string>;

class Controllers : public UIKitClockTest {
  protected:
    NotingController* make(NSString* name) {
        return [NotingController controllerNamed:name listener:listener()];
    }

    // What was noted since the last call, without layouts.
    Texts events() {
        Texts events = std::exchange(notes(), {});
        std::erase_if(events, [](const std::string& each) { return each.ends_with("did lay out"); });
        return events;
    }
};

TEST_F(Controllers, load_their_view_when_it_is_asked_for) {
    UIViewController* controller = [[[UIViewController alloc] init] autorelease];
    EXPECT_FALSE([controller isViewLoaded]);
    EXPECT_EQ([[controller view] frame], [[UIScreen mainScreen] bounds]);
    EXPECT_TRUE([controller isViewLoaded]);
    EXPECT_EQ([[controller view] _viewControllerForAncestor], controller);
    EXPECT_EQ([addView(CGRectZero, [controller view]) _viewControllerForAncestor], controller);
}

TEST_F(Controllers, of_a_window_appear_and_are_laid_out) {
    [window() setRootViewController:make(@"root")];
    EXPECT_EQ(notes(), (Texts{"root will appear", "root did lay out", "root did appear"}));
    notes().clear();
    [[[window() rootViewController] view] setNeedsLayout];
    host().drain();
    EXPECT_EQ(notes(), (Texts{"root did lay out"}));
}

TEST_F(Controllers, are_presented_at_once_and_told_when_the_transition_is_over) {
    [window() setRootViewController:make(@"below")];
    events();
    NotingController* above = make(@"above");
    Listener* noted = listener();
    [[window() rootViewController] presentViewController:above
                                                animated:YES
                                              completion:^{
                                                  [noted note:@"completion"];
                                              }];
    EXPECT_EQ([[window() rootViewController] presentedViewController], above);
    EXPECT_EQ([above presentingViewController], [window() rootViewController]);
    EXPECT_EQ(events(), (Texts{"below will disappear", "above will appear"}));
    clock().advance(1);
    EXPECT_EQ(events(), (Texts{"below did disappear", "above did appear", "completion"}));

    [above dismissViewControllerAnimated:YES
                              completion:^{
                                  [noted note:@"completion"];
                              }];
    EXPECT_EQ([[window() rootViewController] presentedViewController], above);
    EXPECT_EQ(events(), (Texts{"above will disappear", "below will appear"}));
    clock().advance(1);
    EXPECT_EQ(events(), (Texts{"above did disappear", "below did appear", "completion"}));
    EXPECT_EQ([[window() rootViewController] presentedViewController], nil);
    EXPECT_EQ([[above view] window], nil);
}

TEST_F(Controllers, refuse_a_second_presentation_and_one_from_off_the_screen) {
    UIViewController* first = make(@"first");
    UIViewController* second = make(@"second");
    [root() presentViewController:first animated:YES completion:nil];
    [root() presentViewController:second animated:YES completion:nil];
    EXPECT_EQ([root() presentedViewController], first);
    [root() dismissViewControllerAnimated:YES completion:nil];
    [root() presentViewController:second animated:YES completion:nil]; // still being dismissed
    clock().advance(1);
    EXPECT_EQ([root() presentedViewController], nil);
    [make(@"nowhere") presentViewController:second animated:NO completion:nil];
    EXPECT_EQ([second presentingViewController], nil);
    [root() presentViewController:second animated:NO completion:nil];
    EXPECT_EQ([root() presentedViewController], second);
}

TEST_F(Controllers, present_through_the_outermost_container) {
    UIViewController* inner = make(@"inner");
    auto* navigation = [[[UINavigationController alloc] initWithRootViewController:inner] autorelease];
    [window() setRootViewController:navigation];
    UIViewController* presented = make(@"presented");
    [inner presentViewController:presented animated:NO completion:nil];
    EXPECT_EQ([presented presentingViewController], navigation);
    EXPECT_EQ([navigation presentedViewController], presented);
    EXPECT_EQ([inner presentedViewController], presented);
    EXPECT_EQ(frontController(), presented);
    [inner dismissViewControllerAnimated:NO completion:nil];
    EXPECT_EQ(frontController(), navigation);
}

TEST_F(Controllers, dismissal_without_anything_to_dismiss_still_completes) {
    Listener* noted = listener();
    [root() dismissViewControllerAnimated:YES
                               completion:^{
                                   [noted note:@"completion"];
                               }];
    EXPECT_EQ(events(), (Texts{"completion"}));
}

TEST_F(Controllers, of_a_navigation_stack_come_and_go_with_their_items) {
    UIViewController* first = make(@"first");
    UIViewController* second = make(@"second");
    UIViewController* third = make(@"third");
    auto* navigation = [[[UINavigationController alloc] initWithRootViewController:first] autorelease];
    [window() setRootViewController:navigation];
    events();
    [navigation pushViewController:second animated:YES];
    EXPECT_EQ(events(), (Texts{"first will disappear", "second will appear", "first did disappear",
                               "second did appear"}));
    EXPECT_EQ([second navigationController], navigation);
    EXPECT_EQ([[navigation navigationBar] topItem], [second navigationItem]);
    EXPECT_TRUE([[[[navigation navigationBar] topItem] title] isEqualToString:@"second"]);
    [navigation pushViewController:third animated:NO];
    NSArray* popped = [navigation popToRootViewControllerAnimated:YES];
    EXPECT_TRUE(([popped isEqualToArray:@[ second, third ]]));
    EXPECT_EQ([navigation topViewController], first);
    EXPECT_EQ([second navigationController], nil);
    EXPECT_EQ([[navigation popToRootViewControllerAnimated:YES] count], 0U);
    EXPECT_EQ([navigation popViewControllerAnimated:YES], nil);
    EXPECT_EQ([[second view] window], nil);
    EXPECT_EQ([[first view] window], window());
}

TEST_F(Controllers, bar_buttons_are_tapped_by_title_unless_disabled) {
    UIViewController* controller = make(@"albums");
    auto* navigation = [[[UINavigationController alloc] initWithRootViewController:controller] autorelease];
    [window() setRootViewController:navigation];
    EXPECT_EQ([[controller navigationItem] leftBarButtonItems], nil);
    auto* button = [[[UIBarButtonItem alloc] initWithTitle:@"Go"
                                                     style:UIBarButtonItemStylePlain
                                                    target:listener()
                                                    action:@selector(tapped:)] autorelease];
    [[controller navigationItem] setLeftBarButtonItems:@[ button ]];
    [[controller navigationItem] setRightBarButtonItem:[controller editButtonItem]];
    events();
    tapBarButton("Go");
    EXPECT_EQ(events(), (Texts{"tapped"}));
    tapBarButton("Edit");
    EXPECT_TRUE([controller isEditing]);
    tapBarButton("Done");
    EXPECT_FALSE([controller isEditing]);
    [button setEnabled:NO];
    EXPECT_NE(errorOf([&] { tapBarButton("Go"); }), "");
    EXPECT_NE(errorOf([&] { tapBarButton("Missing"); }), "");
}

TEST_F(Controllers, of_tabs_are_chosen_by_tapping_the_bar) {
    UIViewController* photos = make(@"Photos");
    UIViewController* albums = make(@"Albums");
    auto* tabs = [[[UITabBarController alloc] init] autorelease];
    [tabs setViewControllers:@[ photos, albums ]];
    [window() setRootViewController:tabs];
    events();
    const CGFloat bottom = CGRectGetMaxY([[UIScreen mainScreen] bounds]) - 10;
    tapAt(CGPointMake([[UIScreen mainScreen] bounds].size.width * 0.75, bottom));
    EXPECT_EQ([tabs selectedViewController], albums);
    EXPECT_EQ(events(), (Texts{"Photos will disappear", "Albums will appear", "Photos did disappear",
                               "Albums did appear"}));
    EXPECT_EQ([[tabs tabBar] selectedItem], [albums tabBarItem]);
    EXPECT_FALSE([[tabs tabBar] isHidden]);
    [[tabs tabBar] setHidden:YES];
    [[tabs view] setNeedsLayout];
    [[tabs view] layoutIfNeeded];
    EXPECT_EQ([[albums view] frame], [[tabs view] bounds]);
}

TEST_F(Controllers, turn_with_the_device) {
    Texts sizes;
    TurningController* controller = [[[TurningController alloc] init] autorelease];
    controller->sizes = &sizes;
    [window() setRootViewController:controller];
    setLandscape(true);
    EXPECT_EQ([[controller view] frame], CGRectMake(0, 0, 667, 375));
    EXPECT_EQ(sizes, (Texts{"667"}));
    clock().advance(1);
    EXPECT_EQ(sizes, (Texts{"667", "done"}));
    setLandscape(false);
    EXPECT_EQ([[controller view] frame], CGRectMake(0, 0, 375, 667));
}

TEST_F(Controllers, hear_nothing_of_sizes_before_ios_8_and_the_screen_stays_upright) {
    setCurrentRelease(Release::ios7_1);
    Texts sizes;
    TurningController* controller = [[[TurningController alloc] init] autorelease];
    controller->sizes = &sizes;
    [window() setRootViewController:controller];
    setLandscape(true);
    EXPECT_TRUE(sizes.empty());
    EXPECT_EQ([[UIScreen mainScreen] bounds], CGRectMake(0, 0, 375, 667));
    setLandscape(false);
}

} // namespace

} // namespace simulator::test
