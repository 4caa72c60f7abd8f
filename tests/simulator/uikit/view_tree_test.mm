#include "simulator/uikit/uikit_fixture.h"

namespace simulator::test {

namespace {

using nlohmann::json;
using ViewTree = UIKitTest;

TEST_F(ViewTree, shows_as_json_and_as_a_picture_what_is_on_the_screen) {
    UIView* box = addView(CGRectMake(1, 2, 30, 40));
    [box setTag:12];
    [box setAlpha:0.5];
    UILabel* label = [[[UILabel alloc] initWithFrame:CGRectMake(0, 0, 9, 9)] autorelease];
    [label setText:@"Fish & <Chips>"];
    [box addSubview:label];
    UILabel* hidden = [[[UILabel alloc] initWithFrame:CGRectMake(0, 0, 9, 9)] autorelease];
    [hidden setText:@"hidden away"];
    [hidden setHidden:YES];
    [screen() addSubview:hidden];
    const json expected = {{"class", "UIView"},
                           {"frame", {1.0, 2.0, 30.0, 40.0}},
                           {"tag", 12},
                           {"alpha", 0.5},
                           {"subviews",
                            {{{"class", "UILabel"},
                              {"frame", {0.0, 0.0, 9.0, 9.0}},
                              {"text", "Fish & <Chips>"},
                              {"subviews", json::array()}}}}};
    const json rootView = performVerb({{"do", "viewTree"}}).at("keyWindow").at("subviews").at(0);
    EXPECT_EQ(rootView.at("controller"), "UIViewController");
    EXPECT_EQ(rootView.at("subviews").at(0), expected);
    EXPECT_EQ(rootView.at("subviews").at(1).at("hidden"), true);

    UIAlertController* alert = [UIAlertController alertControllerWithTitle:@"Sure?"
                                                                   message:nil
                                                            preferredStyle:UIAlertControllerStyleAlert];
    [root() presentViewController:alert animated:NO completion:nil];
    const std::string picture = performVerb({{"do", "screen"}}).at("svg");
    EXPECT_NE(picture.find(">Fish &amp; &lt;Chips&gt;</text>"), std::string::npos) << picture;
    EXPECT_NE(picture.find(">Sure?</text>"), std::string::npos);
    EXPECT_EQ(picture.find("away"), std::string::npos);
}

// Taps the middle of the spot of that label.
void touch(const char* label) {
    const json screen = performVerb({{"do", "screen"}});
    for (const json& spot : screen.at("spots")) {
        if (spot.at("label") != label) continue;
        const std::vector<double> rect = spot.at("rect");
        performVerb({{"do", "touch"}, {"x", rect[0] + rect[2] / 2}, {"y", rect[1] + rect[3] / 2}});
        return;
    }
    ADD_FAILURE() << "no finger can get at " << label;
}

TEST_F(ViewTree, takes_touches_where_things_are_drawn) {
    UIViewController* first = [[[UIViewController alloc] init] autorelease];
    UIViewController* second = [[[UIViewController alloc] init] autorelease];
    [first setTitle:@"First"];
    auto* navigation = [[[UINavigationController alloc] initWithRootViewController:first] autorelease];
    [navigation pushViewController:second animated:NO];
    UIViewController* other = [[[UIViewController alloc] init] autorelease];
    for (UIViewController* tab : {other, static_cast<UIViewController*>(navigation)})
        [tab setTabBarItem:[[[UITabBarItem alloc] initWithTitle:tab == other ? @"Other" : @"Stack"
                                                          image:nil
                                                            tag:0] autorelease]];
    auto* tabs = [[[UITabBarController alloc] init] autorelease];
    [tabs setViewControllers:@[ other, navigation ]];
    [window() setRootViewController:tabs];
    UISwitch* control = [[[UISwitch alloc] initWithFrame:CGRectMake(10, 10, 51, 31)] autorelease];
    [[other view] addSubview:control];

    touch("UISwitch");
    EXPECT_TRUE([control isOn]);
    touch("Stack");
    EXPECT_TRUE([tabs selectedViewController] == navigation);
    UIAlertController* alert = [UIAlertController alertControllerWithTitle:@"Sure?"
                                                                   message:nil
                                                            preferredStyle:UIAlertControllerStyleAlert];
    [alert addAction:[UIAlertAction actionWithTitle:@"Yes" style:UIAlertActionStyleDefault handler:nil]];
    [tabs presentViewController:alert animated:NO completion:nil];
    EXPECT_EQ(performVerb({{"do", "screen"}}).at("spots").size(), 1U) << "the alert lies over everything";
    touch("Yes");
    EXPECT_TRUE(frontAlert() == nil);
    touch("Back to First");
    EXPECT_TRUE([navigation topViewController] == first);
}

TEST_F(ViewTree, scrolls_as_far_as_there_is_more_and_turns_with_the_screen) {
    auto* view = [[[UIScrollView alloc] initWithFrame:CGRectMake(0, 0, 100, 100)] autorelease];
    [view setContentSize:CGSizeMake(100, 250)];
    [screen() addSubview:view];
    for (const double expected : {100.0, 150.0}) {
        performVerb({{"do", "scroll"}, {"x", 50}, {"y", 50}, {"down", 100}});
        EXPECT_EQ([view contentOffset].y, expected);
    }
    change([](Conditions& conditions) { std::swap(conditions.screen.width, conditions.screen.height); });
    performVerb({{"do", "followScreen"}});
    EXPECT_TRUE(CGRectEqualToRect([screen() frame], CGRectMake(0, 0, 667, 375)));
}

} // namespace

} // namespace simulator::test
