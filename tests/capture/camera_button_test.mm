// The album button and its label in the Camera's bottom bar.
#include "capture/capture_fixture.h"
#include "support/environment.h"

namespace simulator::test {
namespace {

constexpr double middle = 2 * 375.0 / 7;

class CameraButton : public CaptureTest {
  protected:
    // Has image and label made anew.
    void remake() {
        [albumLabel() removeFromSuperview];
        [albumImage() removeFromSuperview];
        [bar() layoutSubviews];
    }
    void expectImage(CGFloat x, CGFloat y) {
        EXPECT_EQ([albumImage() frame], CGRectMake(x - 14, y - 14, 28, 28));
        EXPECT_TRUE([albumImage() superview] == [bar() backgroundView]);
        tap(albumImage());
        EXPECT_EQ(alertTitle(), "Choose Album");
        tapAlertAction("Cancel");
    }
};

TEST_F(CameraButton, is_an_image_that_opens_the_chooser_over_a_small_white_label) {
    openCamera();
    EXPECT_EQ(viewAsJson(albumImage()).at("image"), nullptr);
    expectImage(middle, 55);
    std::filesystem::copy(deviceFiles(), device().root(), std::filesystem::copy_options::recursive);
    remake();
    EXPECT_EQ(viewAsJson(albumImage()).at("image").at("file"), "album@2x.png");
    expectImage(middle, 55);
    ASSERT_EQ([[albumImage() gestureRecognizers] count], 1U);
    UITapGestureRecognizer* recognizer = [[albumImage() gestureRecognizers] firstObject];
    ASSERT_TRUE([recognizer isMemberOfClass:[UITapGestureRecognizer class]]);
    EXPECT_EQ([recognizer numberOfTapsRequired], 1U);
    EXPECT_TRUE([recognizer delegate] == bar());

    UILabel* label = albumLabel();
    EXPECT_EQ(labelMeasuredIn({380, 20}), cameraRoll);
    EXPECT_TRUE([[label font] isEqual:[UIFont systemFontOfSize:12]]);
    EXPECT_TRUE([[label textColor] isEqual:[UIColor whiteColor]]);
    EXPECT_TRUE([[label backgroundColor] isEqual:[UIColor clearColor]]);
    EXPECT_EQ([label textAlignment], NSTextAlignmentCenter);
    EXPECT_EQ([label numberOfLines], 1);
    EXPECT_EQ([label baselineAdjustment], UIBaselineAdjustmentAlignBaselines);
    EXPECT_TRUE([label adjustsFontSizeToFitWidth] && [label adjustsLetterSpacingToFitWidth]);
    EXPECT_EQ([label minimumScaleFactor], static_cast<double>(0.8333333F)) << "single precision, widened";
    EXPECT_TRUE([label clipsToBounds]);
}

TEST_F(CameraButton, moves_aside_and_is_measured_narrowly_beside_a_draw_button) {
    library().addAlbum(longTitle);
    openCamera(longTitle);
    EXPECT_EQ(labelMeasuredIn({380, 20}), longTitle);
    addLoadedFramework("CustomDraw");
    auto* button = [[[CustomDrawButton alloc] init] autorelease];
    UIView* holder = [[[UIView alloc] init] autorelease];
    [holder addSubview:button];
    [bar() addSubview:holder];
    remake();
    expectImage(middle, 55);
    EXPECT_EQ(labelMeasuredIn({380, 20}), longTitle) << "the button lies deeper in the bar";
    [bar() addSubview:button];
    remake();
    expectImage(middle + 28, 55);
    EXPECT_EQ(labelMeasuredIn({100, 40}), longTitle);
    choose(longTitle);
    EXPECT_EQ(labelMeasuredIn({380, 20}), longTitle) << "a choice always measures widely";
}

TEST_F(CameraButton, keeps_its_place_on_later_passes_and_changes_the_text_alone) {
    openCamera("Family");
    [albumImage() setFrame:CGRectMake(1, 2, 3, 4)];
    [albumLabel() setFrame:CGRectMake(5, 6, 7, 8)];
    [albumLabel() setText:@"old"];
    [albumLabel() setNumberOfLines:3];
    [bar() setFrame:CGRectMake(0, 500, 700, 160)];
    camera::addDrawButton();
    camera::addDrawButton();
    EXPECT_EQ(text([albumLabel() text]), "Family");
    EXPECT_EQ([albumImage() frame], CGRectMake(1, 2, 3, 4));
    EXPECT_EQ([albumLabel() frame], CGRectMake(5, 6, 7, 8));
    EXPECT_EQ([albumLabel() numberOfLines], 3);
    EXPECT_EQ([[[bar() backgroundView] subviews] count], 2U);
    remake();
    EXPECT_EQ([albumImage() frame], CGRectMake(214, 71, 28, 28)) << "placed by the bar's new layout";
    for (const char* key : {"enabled", "enableCameraPicker"}) {
        reloadPreferences({{key, false}});
        [albumLabel() setText:@"old"];
        [bar() layoutSubviews];
        EXPECT_EQ(text([albumLabel() text]), "old") << key;
    }
}

TEST_F(CameraButton, is_looked_for_in_the_whole_bar_and_its_label_in_the_background_alone) {
    openCamera();
    [[bar() imageWell] addSubview:albumImage()];
    UILabel* label = albumLabel();
    [label setText:@"old"];
    [bar() addSubview:label];
    [bar() layoutSubviews];
    EXPECT_EQ(text([label text]), "old");
    EXPECT_EQ([[[bar() backgroundView] subviews] count], 0U) << "nothing is made";
}

} // namespace
} // namespace simulator::test
