#include "simulator/uikit/uikit_fixture.h"

namespace simulator::test {

namespace {

UIAlertController* makeAlert(UIAlertControllerStyle style) {
    return [UIAlertController alertControllerWithTitle:@"Title" message:@"Message" preferredStyle:style];
}

using Alert = UIKitTest;

TEST_F(Alert, has_gone_when_the_tapped_action_runs_and_raises_where_the_device_does) {
    UIAlertController* alert = makeAlert(UIAlertControllerStyleAlert);
    UIAlertController* next = makeAlert(UIAlertControllerStyleActionSheet);
    UIViewController* presenter = root();
    UIAlertAction* action = [UIAlertAction actionWithTitle:@"Next"
                                                     style:UIAlertActionStyleCancel
                                                   handler:^(UIAlertAction*) {
                                                       [presenter presentViewController:next
                                                                               animated:YES
                                                                             completion:nil];
                                                   }];
    [alert addAction:action];
    const std::string inconsistent = "NSInternalInconsistencyException";
    EXPECT_EQ(exceptionOf([&] { [alert addAction:action]; }), inconsistent) << "a second cancel button";
    EXPECT_EQ(exceptionOf([&] { [next addTextFieldWithConfigurationHandler:nil]; }), inconsistent);
    [root() presentViewController:alert animated:YES completion:nil];
    tapAlertAction("Next");
    EXPECT_EQ(frontAlert(), next) << "a phone's sheet needs nothing to point at";
}

struct AnchorCase {
    const char* name;
    UIAlertControllerStyle style;
    bool hasView, hasButton, isShown;
};

class PadAlert : public UIKitPadTest, public testing::WithParamInterface<AnchorCase> {};

TEST_P(PadAlert, a_sheet_must_point_at_something) {
    UIAlertController* alert = makeAlert(GetParam().style);
    UIPopoverPresentationController* popover = [alert popoverPresentationController];
    if (GetParam().hasView) [popover setSourceView:screen()];
    if (GetParam().hasButton) [popover setBarButtonItem:[[[UIBarButtonItem alloc] init] autorelease]];
    const std::string raised =
        exceptionOf([&] { [root() presentViewController:alert animated:YES completion:nil]; });
    EXPECT_EQ(raised, GetParam().isShown ? "" : "NSGenericException");
    EXPECT_EQ(frontAlert(), GetParam().isShown ? alert : nil);
}

INSTANTIATE_TEST_SUITE_P(
    anchors, PadAlert,
    testing::Values(AnchorCase{"sheet", UIAlertControllerStyleActionSheet, false, false, false},
                    AnchorCase{"sheet_at_a_view", UIAlertControllerStyleActionSheet, true, false, true},
                    AnchorCase{"sheet_at_a_button", UIAlertControllerStyleActionSheet, false, true, true},
                    AnchorCase{"alert", UIAlertControllerStyleAlert, false, false, true}),
    [](const auto& info) { return info.param.name; });

} // namespace

} // namespace simulator::test
