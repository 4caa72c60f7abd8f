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
    const std::string picture = performVerb({{"do", "screenshot"}}).at("svg");
    EXPECT_NE(picture.find(">Fish &amp; &lt;Chips&gt;</text>"), std::string::npos) << picture;
    EXPECT_NE(picture.find(">Sure?</text>"), std::string::npos);
    EXPECT_EQ(picture.find("away"), std::string::npos);
}

} // namespace

} // namespace simulator::test
