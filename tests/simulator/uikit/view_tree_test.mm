#import "simulator/uikit/uikit_test.h"

#include "UIKit/Screenshot.h"

// Counts the instances that are alive.
@interface CountedView : UIView
@end

static int aliveViews = 0;

@implementation CountedView

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    ++aliveViews;
    return self;
}

- (void)dealloc {
    --aliveViews;
    [super dealloc];
}

@end

// The life of an application, noted.
@interface NotingApplication : UIApplication {
  @public
    Listener* listener;
}
@end

@implementation NotingApplication

- (void)applicationDidEnterBackground:(UIApplication*)application {
    [listener note:@"background"];
}

@end

namespace simulator::test {

namespace {

using nlohmann::json;
using ViewTree = UIKitTest;

TEST_F(ViewTree, describes_what_is_on_the_screen) {
    device().writeFile("/var/mobile/lock.png", [&] {
        NSData* file = UIImagePNGRepresentation([UIImage imageWithPixelSize:CGSizeMake(8, 6) seed:1]);
        return std::string_view(static_cast<const char*>([file bytes]), [file length]);
    }());
    UIView* box = addView(CGRectMake(1, 2, 30, 40));
    [box setTag:12];
    [box setAlpha:0.5];
    [[box layer] setCornerRadius:4];
    [box addGestureRecognizer:[[[UILongPressGestureRecognizer alloc] initWithTarget:nil
                                                                             action:nullptr] autorelease]];
    UILabel* label = [[[UILabel alloc] initWithFrame:CGRectMake(0, 0, 9, 9)] autorelease];
    [label setText:@"Hidden \"ä\""];
    [label setHidden:YES];
    [box addSubview:label];
    UIImage* image = [UIImage imageWithContentsOfFile:@"/var/mobile/lock.png"];
    [box addSubview:[[[UIImageView alloc] initWithImage:image] autorelease]];

    const json tree = viewTreeAsJson();
    EXPECT_EQ(tree.at("screen"), (json{{"width", 375.0}, {"height", 667.0}, {"scale", 2.0}}));
    const json rootView = tree.at("keyWindow").at("subviews").at(0);
    EXPECT_EQ(rootView.at("controller"), "UIViewController");
    const json described = rootView.at("subviews").at(0);
    EXPECT_EQ(described.at("class"), "UIView");
    EXPECT_EQ(described.at("frame"), (json{1.0, 2.0, 30.0, 40.0}));
    EXPECT_EQ(described.at("tag"), 12);
    EXPECT_EQ(described.at("alpha"), 0.5);
    EXPECT_EQ(described.at("cornerRadius"), 4.0);
    EXPECT_EQ(described.at("gestures").at(0),
              (json{{"class", "UILongPressGestureRecognizer"}, {"enabled", true}, {"seconds", 0.5}}));
    EXPECT_EQ(described.at("subviews").at(0).at("text"), "Hidden \"ä\"");
    EXPECT_EQ(described.at("subviews").at(0).at("hidden"), true);
    EXPECT_EQ(described.at("subviews").at(1).at("image"), (json{{"size", {8.0, 6.0}}, {"file", "lock.png"}}));
}

TEST_F(ViewTree, verbs_see_touch_and_type) {
    UIView* view = addView(CGRectMake(0, 0, 100, 100));
    [view setTag:5];
    auto* recognizer = [[[UITapGestureRecognizer alloc] initWithTarget:listener()
                                                                action:@selector(tapped:)] autorelease];
    [view addGestureRecognizer:recognizer];
    UITextField* field = [[[UITextField alloc] initWithFrame:CGRectMake(0, 200, 100, 20)] autorelease];
    [screen() addSubview:field];

    EXPECT_EQ(performVerb({{"do", "tap"}, {"tag", 5}}), (json{{"hit", "UIView"}, {"tag", 5}}));
    EXPECT_EQ(performVerb({{"do", "tap"}, {"x", 10}, {"y", 10}}), (json{{"hit", "UIView"}, {"tag", 5}}));
    EXPECT_EQ(performVerb({{"do", "tap"}, {"path", {0, 0}}}), (json{{"hit", "UIView"}, {"tag", 5}}));
    EXPECT_EQ(notes().size(), 3U);
    performVerb({{"do", "type"}, {"text", "abc"}});
    EXPECT_TRUE([[field text] isEqualToString:@"abc"]);
    EXPECT_TRUE([field isFirstResponder]);
    EXPECT_EQ(performVerb({{"do", "viewTree"}}), viewTreeAsJson());
}

TEST_F(ViewTree, the_picture_of_the_screen_shows_what_can_be_seen) {
    const auto addLabel = [this](NSString* text) {
        UILabel* label = [[[UILabel alloc] initWithFrame:CGRectMake(10, 10, 100, 20)] autorelease];
        [label setText:text];
        [screen() addSubview:label];
        return label;
    };
    addLabel(@"Fish & <Chips>");
    [addLabel(@"hidden away") setHidden:YES];
    [addLabel(@"faded away") setAlpha:0];
    UIAlertController* alert = [UIAlertController alertControllerWithTitle:@"Sure?"
                                                                   message:nil
                                                            preferredStyle:UIAlertControllerStyleAlert];
    [root() presentViewController:alert animated:NO completion:nil];
    const std::string picture = screenshotAsSvg();
    EXPECT_NE(picture.find(">Fish &amp; &lt;Chips&gt;</text>"), std::string::npos) << picture;
    EXPECT_NE(picture.find(">Sure?</text>"), std::string::npos);
    EXPECT_EQ(picture.find("away"), std::string::npos);
    EXPECT_EQ(performVerb({{"do", "screenshot"}}).at("svg"), picture);
}

TEST_F(ViewTree, views_are_freed_with_their_superview) {
    @autoreleasepool {
        UIView* outer = [[[CountedView alloc] initWithFrame:CGRectZero] autorelease];
        UIView* inner = [[[CountedView alloc] initWithFrame:CGRectZero] autorelease];
        [outer addSubview:inner];
        [screen() addSubview:outer];
        [inner addGestureRecognizer:[[[UITapGestureRecognizer alloc] initWithTarget:inner
                                                                             action:nullptr] autorelease]];
        viewTreeAsJson();
        [outer removeFromSuperview];
        EXPECT_EQ(aliveViews, 2);
    }
    host().drain(); // the pending layout lets go
    EXPECT_EQ(aliveViews, 0);
}

TEST_F(ViewTree, a_presented_controller_is_freed_after_it_has_gone) {
    @autoreleasepool {
        UIViewController* controller = [[[UIViewController alloc] init] autorelease];
        [[controller view] addSubview:[[[CountedView alloc] initWithFrame:CGRectZero] autorelease]];
        [root() presentViewController:controller animated:NO completion:nil];
        [root() dismissViewControllerAnimated:NO completion:nil];
    }
    host().drain();
    EXPECT_EQ(aliveViews, 0);
}

TEST_F(ViewTree, the_application_hears_of_its_life_through_overridden_methods) {
    [[UIApplication sharedApplication] release];
    auto* application =
        static_cast<NotingApplication*>([UIApplication startApplicationOfClass:[NotingApplication class]]);
    application->listener = listener();
    EXPECT_EQ([UIApplication sharedApplication], application);
    [application enterBackground];
    [application enterBackground];
    EXPECT_EQ(notes(), (std::vector<std::string>{"background"}));
    EXPECT_EQ(exceptionOf([] { [UIApplication startApplicationOfClass:[UIApplication class]]; }),
              "NSInternalInconsistencyException");
}

TEST_F(ViewTree, the_haptic_engine_is_there_unless_the_device_has_none) {
    _UITapticEngine* engine = [[UIDevice currentDevice] _tapticEngine];
    [engine actuateFeedback:2];
    EXPECT_TRUE([[engine actuatedFeedback] isEqualToArray:@[ @2 ]]);
    device().changeConditions([](Conditions& conditions) { conditions.hapticEngine = false; });
    EXPECT_EQ([[UIDevice currentDevice] _tapticEngine], nil);
}

} // namespace

} // namespace simulator::test
