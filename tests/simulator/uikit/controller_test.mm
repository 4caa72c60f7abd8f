#include "simulator/uikit/uikit_fixture.h"

// Notes each appearance as "NAME will appear" and the like.
@interface NotingController : UIViewController {
  @public
    Listener* listener;
}
@end

@implementation NotingController

- (void)note:(NSString*)event {
    [listener note:[[self title] stringByAppendingString:event]];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self note:@" will appear"];
}

- (void)viewDidAppear:(BOOL)animated {
    [super viewDidAppear:animated];
    [self note:@" did appear"];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    [self note:@" will disappear"];
}

- (void)viewDidDisappear:(BOOL)animated {
    [super viewDidDisappear:animated];
    [self note:@" did disappear"];
}

@end

namespace simulator::test {

namespace {

using Texts = std::vector<std::string>;

class Controllers : public UIKitClockTest {
  protected:
    NotingController* make(NSString* name) {
        auto* controller = [[[NotingController alloc] init] autorelease];
        [controller setTitle:name];
        controller->listener = listener();
        return controller;
    }

    // What was noted since the last call.
    Texts events() { return std::exchange(notes(), {}); }
};

TEST_F(Controllers, are_presented_at_once_and_told_when_the_transition_is_over) {
    UIViewController* inner = make(@"below");
    auto* below = [[[UINavigationController alloc] initWithRootViewController:inner] autorelease];
    [window() setRootViewController:below];
    EXPECT_EQ(events(), (Texts{"below will appear", "below did appear"}));
    NotingController* above = make(@"above");
    NotingController* second = make(@"second");
    Listener* noted = listener();
    void (^completion)(void) = ^{
        [noted note:@"completion"];
    };
    [inner presentViewController:above animated:YES completion:completion];
    [inner presentViewController:second animated:YES completion:nil]; // one at a time
    EXPECT_EQ([below presentedViewController], above);
    EXPECT_EQ([above presentingViewController], below);
    EXPECT_EQ(events(), (Texts{"below will disappear", "above will appear"}));
    clock().advance(1);
    EXPECT_EQ(events(), (Texts{"below did disappear", "above did appear", "completion"}));

    [above dismissViewControllerAnimated:YES completion:completion];
    [inner presentViewController:second animated:YES completion:nil]; // not before the old one has gone
    EXPECT_EQ([inner presentedViewController], above);
    EXPECT_EQ(events(), (Texts{"above will disappear", "below will appear"}));
    clock().advance(1);
    EXPECT_EQ(events(), (Texts{"above did disappear", "below did appear", "completion"}));
    EXPECT_EQ([inner presentedViewController], nil);
    EXPECT_EQ([[above view] window], nil);
}

} // namespace

} // namespace simulator::test
