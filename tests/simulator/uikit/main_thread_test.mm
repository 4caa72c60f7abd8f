#import "simulator/uikit/uikit_test.h"

namespace simulator::test {

namespace {

struct ForbiddenCase {
    const char* name;
    std::function<void(UIView* view, UIViewController* controller)> use;
    const char* method;
};

class ElsewhereForbidden : public UIKitTest, public testing::WithParamInterface<ForbiddenCase> {};

TEST_P(ElsewhereForbidden, raises_naming_the_method) {
    UIView* view = screen();
    UIViewController* controller = root();
    const std::string raised = exceptionElsewhere([&] { GetParam().use(view, controller); });
    EXPECT_EQ(raised, std::string("NSInternalInconsistencyException: ") + GetParam().method +
                          " must be used from the main thread only");
}

INSTANTIATE_TEST_SUITE_P(
    methods, ElsewhereForbidden,
    testing::Values(
        ForbiddenCase{"make_a_view",
                      [](auto*, auto*) { [[[UIView alloc] initWithFrame:CGRectZero] release]; },
                      "-[UIView initWithFrame:]"},
        ForbiddenCase{"read_a_frame", [](UIView* view, auto*) { [view frame]; }, "-[UIView frame]"},
        ForbiddenCase{"hide_a_view", [](UIView* view, auto*) { [view setHidden:YES]; },
                      "-[UIView setHidden:]"},
        ForbiddenCase{"animate", [](auto*, auto*) { [UIView animateWithDuration:1 animations:nil]; },
                      "+[UIView animateWithDuration:delay:options:animations:completion:]"},
        ForbiddenCase{"load_a_view", [](auto*, UIViewController* controller) { [controller view]; },
                      "-[UIViewController view]"},
        ForbiddenCase{"present",
                      [](auto*, UIViewController* controller) {
                          [controller presentViewController:nil animated:NO completion:nil];
                      },
                      "-[UIViewController presentViewController:animated:completion:]"},
        ForbiddenCase{"make_an_alert",
                      [](auto*, auto*) {
                          [UIAlertController alertControllerWithTitle:nil
                                                              message:nil
                                                       preferredStyle:UIAlertControllerStyleAlert];
                      },
                      "+[UIAlertController alertControllerWithTitle:message:preferredStyle:]"},
        ForbiddenCase{"make_a_recognizer",
                      [](auto*, auto*) {
                          [[[UITapGestureRecognizer alloc] initWithTarget:nil action:nullptr] release];
                      },
                      "-[UITapGestureRecognizer initWithTarget:action:]"}),
    [](const auto& info) { return info.param.name; });

TEST_F(UIKitTest, colors_fonts_images_and_measurement_work_on_any_thread) {
    const std::string raised = exceptionElsewhere([] {
        [[UIColor blackColor] colorWithAlphaComponent:0.5];
        [[UIFont systemFontOfSize:12] lineHeight];
        [UIImage imageWithData:UIImagePNGRepresentation([UIImage imageWithPixelSize:CGSizeMake(2, 2)
                                                                               seed:1])];
        [@"text" sizeWithFont:[UIFont systemFontOfSize:12]
            constrainedToSize:CGSizeMake(10, 10)
                lineBreakMode:NSLineBreakByTruncatingTail];
        [[UIDevice currentDevice] userInterfaceIdiom];
        [[UIScreen mainScreen] bounds];
    });
    EXPECT_EQ(raised, "");
}

} // namespace

} // namespace simulator::test
