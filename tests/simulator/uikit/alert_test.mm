#import "simulator/uikit/uikit_test.h"

namespace simulator::test {

namespace {

UIAlertController* makeAlert(UIAlertControllerStyle style) {
    return [UIAlertController alertControllerWithTitle:@"Title" message:@"Message" preferredStyle:style];
}

// Adds an action that notes its title.
UIAlertAction* addAction(UIAlertController* alert, Listener* listener, NSString* title,
                         UIAlertActionStyle style = UIAlertActionStyleDefault) {
    UIAlertAction* action = [UIAlertAction actionWithTitle:title
                                                     style:style
                                                   handler:^(UIAlertAction* tapped) {
                                                       [listener note:[tapped title]];
                                                   }];
    [alert addAction:action];
    return action;
}

using Alert = UIKitTest;

TEST_F(Alert, shows_what_it_was_made_of_in_order) {
    UIAlertController* alert = makeAlert(UIAlertControllerStyleAlert);
    addAction(alert, listener(), @"No", UIAlertActionStyleCancel);
    addAction(alert, listener(), @"Yes");
    addAction(alert, listener(), @"Erase", UIAlertActionStyleDestructive);
    [alert addTextFieldWithConfigurationHandler:^(UITextField* field) {
        [field setPlaceholder:@"Password"];
        [field setSecureTextEntry:YES];
    }];
    [root() presentViewController:alert animated:NO completion:nil];
    const nlohmann::json expected = {
        {"title", "Title"},
        {"message", "Message"},
        {"style", "alert"},
        {"actions",
         {{{"title", "No"}, {"style", "cancel"}, {"enabled", true}},
          {{"title", "Yes"}, {"style", "default"}, {"enabled", true}},
          {{"title", "Erase"}, {"style", "destructive"}, {"enabled", true}}}},
        {"textFields", {{{"text", ""}, {"placeholder", "Password"}, {"secure", true}}}},
        {"anchor", nullptr}};
    EXPECT_EQ(viewTreeAsJson().at("alert"), expected);
}

TEST_F(Alert, runs_the_tapped_action_after_it_has_gone) {
    UIAlertController* alert = makeAlert(UIAlertControllerStyleAlert);
    addAction(alert, listener(), @"Other");
    UIViewController* presenter = root();
    Listener* noted = listener();
    [alert addAction:[UIAlertAction actionWithTitle:@"OK"
                                              style:UIAlertActionStyleDefault
                                            handler:^(UIAlertAction*) {
                                                [noted note:[presenter presentedViewController]
                                                                ? @"still there"
                                                                : @"gone"];
                                            }]];
    [root() presentViewController:alert animated:YES completion:nil];
    EXPECT_EQ(frontAlert(), alert);
    tapAlertAction("OK");
    EXPECT_EQ(notes(), (std::vector<std::string>{"gone"}));
    EXPECT_EQ(frontAlert(), nil);
    EXPECT_EQ(viewTreeAsJson().at("alert"), nullptr);
}

TEST_F(Alert, a_handler_may_show_the_next_alert) {
    UIAlertController* first = makeAlert(UIAlertControllerStyleAlert);
    UIAlertController* second = makeAlert(UIAlertControllerStyleAlert);
    addAction(second, listener(), @"Done");
    UIViewController* presenter = root();
    [first addAction:[UIAlertAction actionWithTitle:@"Next"
                                              style:UIAlertActionStyleDefault
                                            handler:^(UIAlertAction*) {
                                                [presenter presentViewController:second
                                                                        animated:YES
                                                                      completion:nil];
                                            }]];
    [root() presentViewController:first animated:YES completion:nil];
    tapAlertAction("Next");
    EXPECT_EQ(frontAlert(), second);
    tapAlertAction("Done");
    EXPECT_EQ(notes(), (std::vector<std::string>{"Done"}));
}

TEST_F(Alert, an_action_without_handler_just_closes_it) {
    UIAlertController* alert = makeAlert(UIAlertControllerStyleAlert);
    [alert addAction:[UIAlertAction actionWithTitle:@"OK" style:UIAlertActionStyleDefault handler:nil]];
    [root() presentViewController:alert animated:NO completion:nil];
    tapAlertAction("OK");
    EXPECT_EQ(frontAlert(), nil);
}

TEST_F(Alert, covers_what_lies_below_it) {
    UIButton* button = [UIButton buttonWithType:UIButtonTypeSystem];
    [button setFrame:CGRectMake(10, 10, 40, 40)];
    [button addTarget:listener() action:@selector(tapped:) forControlEvents:UIControlEventTouchUpInside];
    [screen() addSubview:button];
    [root() presentViewController:makeAlert(UIAlertControllerStyleAlert) animated:NO completion:nil];
    tap(button);
    EXPECT_TRUE(notes().empty());
}

TEST_F(Alert, raises_where_the_device_does) {
    UIAlertController* alert = makeAlert(UIAlertControllerStyleAlert);
    UIAlertController* sheet = makeAlert(UIAlertControllerStyleActionSheet);
    addAction(alert, listener(), @"Cancel", UIAlertActionStyleCancel);
    const std::string inconsistent = "NSInternalInconsistencyException";
    EXPECT_EQ(exceptionOf([&] { addAction(alert, listener(), @"Cancel", UIAlertActionStyleCancel); }),
              inconsistent);
    EXPECT_EQ(exceptionOf([&] { [sheet addTextFieldWithConfigurationHandler:nil]; }), inconsistent);
    EXPECT_EQ(exceptionOf([&] { [alert addAction:nil]; }), "NSInvalidArgumentException");
    EXPECT_EQ([sheet textFields], nil);
    EXPECT_EQ([[alert actions] count], 1U);
}

TEST_F(Alert, refuses_taps_on_what_it_does_not_offer) {
    EXPECT_NE(errorOf([&] { tapAlertAction("OK"); }), "");
    UIAlertController* alert = makeAlert(UIAlertControllerStyleAlert);
    [addAction(alert, listener(), @"OK") setEnabled:NO];
    [root() presentViewController:alert animated:NO completion:nil];
    EXPECT_NE(errorOf([&] { tapAlertAction("Missing"); }), "");
    EXPECT_NE(errorOf([&] { tapAlertAction("OK"); }), "");
    EXPECT_TRUE(notes().empty());
}

TEST_F(Alert, takes_typed_text) {
    UIAlertController* alert = makeAlert(UIAlertControllerStyleAlert);
    [alert addTextFieldWithConfigurationHandler:nil];
    [alert addTextFieldWithConfigurationHandler:^(UITextField* field) {
        [field setText:@"before"];
    }];
    [root() presentViewController:alert animated:NO completion:nil];
    typeText(1, "pässwörd 🔒");
    EXPECT_TRUE([[[[alert textFields] objectAtIndex:1] text] isEqualToString:@"pässwörd 🔒"]);
    EXPECT_TRUE([[[[alert textFields] objectAtIndex:0] text] isEqualToString:@""]);
    EXPECT_NE(errorOf([&] { typeText(2, "x"); }), "");
}

enum class Anchor { none, view, button };

struct AnchorCase {
    const char* name;
    UIAlertControllerStyle style;
    Anchor anchor;
    bool isShown;
};

class PadAlert : public UIKitPadTest, public testing::WithParamInterface<AnchorCase> {};

TEST_P(PadAlert, a_sheet_must_point_at_something) {
    UIAlertController* alert = makeAlert(GetParam().style);
    UIPopoverPresentationController* popover = [alert popoverPresentationController];
    if (GetParam().anchor == Anchor::view) [popover setSourceView:screen()];
    if (GetParam().anchor == Anchor::button)
        [popover setBarButtonItem:[[[UIBarButtonItem alloc] init] autorelease]];
    const std::string raised =
        exceptionOf([&] { [root() presentViewController:alert animated:YES completion:nil]; });
    EXPECT_EQ(raised, GetParam().isShown ? "" : "NSGenericException");
    EXPECT_EQ(frontAlert(), GetParam().isShown ? alert : nil);
}

INSTANTIATE_TEST_SUITE_P(
    anchors, PadAlert,
    testing::Values(AnchorCase{"sheet", UIAlertControllerStyleActionSheet, Anchor::none, false},
                    AnchorCase{"sheet_at_a_view", UIAlertControllerStyleActionSheet, Anchor::view, true},
                    AnchorCase{"sheet_at_a_button", UIAlertControllerStyleActionSheet, Anchor::button, true},
                    AnchorCase{"alert", UIAlertControllerStyleAlert, Anchor::none, true}),
    [](const auto& info) { return info.param.name; });

TEST_F(Alert, a_sheet_needs_no_anchor_on_a_phone) {
    UIAlertController* sheet = makeAlert(UIAlertControllerStyleActionSheet);
    EXPECT_EQ([sheet popoverPresentationController], nil);
    [root() presentViewController:sheet animated:YES completion:nil];
    EXPECT_EQ(frontAlert(), sheet);
}

using PadPopover = UIKitPadTest;

TEST_F(PadPopover, of_any_controller_needs_an_anchor_and_shows_it) {
    UIViewController* controller = [[[UIViewController alloc] init] autorelease];
    EXPECT_EQ([controller popoverPresentationController], nil);
    [controller setModalPresentationStyle:UIModalPresentationPopover];
    EXPECT_EQ(exceptionOf([&] { [root() presentViewController:controller animated:NO completion:nil]; }),
              "NSGenericException");
    [[controller popoverPresentationController] setSourceView:screen()];
    [[controller popoverPresentationController] setSourceRect:CGRectMake(1, 2, 3, 4)];
    [root() presentViewController:controller animated:NO completion:nil];
    const nlohmann::json anchor = {{"class", "UIView"}, {"tag", 0}, {"rect", {1.0, 2.0, 3.0, 4.0}}};
    EXPECT_EQ(viewTreeAsJson().at("presented").at(0).at("anchor"), anchor);
}

} // namespace

} // namespace simulator::test
