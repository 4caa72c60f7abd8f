// The Camera, the share sheet and the photo pickers as they are without any library.
#import "UIKit/ViewTree.h"

#include "device/exceptions.h"
#include "hosts/applications/camera/camera_app.h"
#include "hosts/applications/messenger/messenger_app.h"
#include "hosts/applications/pickers.h"
#include "hosts/applications/plain/plain_app.h"
#include "hosts/applications/settings/settings_app.h"
#include "hosts/client.h"
#include "simulator/hosts/hosts_test.h"
#include "support/environment.h"

#include <gmock/gmock.h>
#include <objc/runtime.h>

#include <algorithm>
#include <atomic>
#include <iterator>
#include <sstream>
#include <thread>

// Stands in front of the capture callback to see where it arrives.
@interface WatchedCaptureEngine : CAMCaptureEngine {
  @public
    std::atomic<bool> _arrived;
    BOOL _onMainThread;
    BOOL _failed;
}
@end

@implementation WatchedCaptureEngine

- (void)captureOutput:(AVCapturePhotoOutput*)output
    didFinishCaptureForResolvedSettings:(AVCaptureResolvedPhotoSettings*)settings
                                  error:(NSError*)error {
    [super captureOutput:output didFinishCaptureForResolvedSettings:settings error:error];
    _onMainThread = [NSThread isMainThread];
    _failed = error != nil ? YES : NO;
    _arrived = true;
}

@end

namespace simulator::test {
namespace {

class CameraApp : public HostsTest {
  protected:
    CameraApp() { start(bundle::camera); }

    std::size_t photoCount() { return library().visibleAssets().size(); }
};

TEST_F(CameraApp, takes_photos_into_the_library) {
    camera::takePhoto();
    camera::takePhoto();
    EXPECT_EQ(photoCount(), 12U);
    EXPECT_EQ(library().visibleAssets().back().mediaType, MediaType::image);
}

class CameraReleases : public HostsTest, public testing::WithParamInterface<Release> {};

TEST_P(CameraReleases, take_photos) {
    device().changeConditions([](Conditions& conditions) { conditions.release = GetParam(); });
    start(bundle::camera);
    EXPECT_EQ(objc_getClass("CAMCaptureEngine") != Nil, GetParam() >= Release::ios9_3);
    if (GetParam() != Release::ios7_1) camera::takePhoto(); // the library itself came with iOS 8
}

INSTANTIATE_TEST_SUITE_P(All, CameraReleases, testing::ValuesIn(allReleases), [](const auto& info) {
    std::string name(releaseName(info.param));
    std::ranges::replace(name, '.', '_');
    return "release_" + name;
});

TEST_F(CameraApp, records_videos) {
    camera::takeVideo();
    EXPECT_EQ(library().visibleAssets().back().mediaType, MediaType::video);
}

TEST_F(CameraApp, a_failed_capture_leaves_no_photo) {
    camera::failCapture();
    EXPECT_EQ(photoCount(), 10U);
}

struct CallbackCase {
    bool fails;
};

TEST_F(CameraApp, callback_arrives_on_a_thread_with_a_run_loop) {
    for (const CallbackCase each : {CallbackCase{false}, CallbackCase{true}}) {
        WatchedCaptureEngine* engine = [[WatchedCaptureEngine alloc] init]; // lives as long as its thread
        NSError* error = each.fails ? [NSError errorWithDomain:@"test" code:1 userInfo:nil] : nil;
        [engine captureStillImageWithError:error];
        waitFor([&] { return engine->_arrived.load(); });
        EXPECT_FALSE(engine->_onMainThread);
        EXPECT_EQ(engine->_failed != NO, each.fails);
    }
}

TEST_F(CameraApp, bar_has_a_background_an_image_well_and_a_controller) {
    CAMBottomBar* bar = [camera::viewfinder() bottomBar];
    viewTreeAsJson(); // lays the screen out
    EXPECT_TRUE([[bar backgroundView] isDescendantOfView:bar]);
    EXPECT_TRUE([[bar imageWell] isDescendantOfView:bar]);
    EXPECT_TRUE([[bar imageWell] thumbnailImage] != nil);
    EXPECT_TRUE([bar _viewControllerForAncestor] == camera::viewfinder());
}

TEST_F(CameraApp, a_tool_brings_its_button_and_class) {
    EXPECT_TRUE(objc_getClass("CustomDrawButton") == Nil);
    camera::addDrawButton();
    Class buttonClass = objc_getClass("CustomDrawButton");
    ASSERT_TRUE(buttonClass != Nil);
    const NSUInteger found = [[[camera::viewfinder() bottomBar] subviews]
        indexOfObjectPassingTest:^BOOL(id view, NSUInteger, BOOL*) {
            return [view isKindOfClass:buttonClass];
        }];
    EXPECT_NE(found, static_cast<NSUInteger>(NSNotFound));
}

nlohmann::json rowTitled(const nlohmann::json& rows, const std::string& title) {
    const auto found = std::ranges::find_if(
        rows, [&](const auto& row) { return row.is_object() && row.at("title") == title; });
    return found == rows.end() ? nlohmann::json() : *found;
}

struct PickerCase {
    const char* bundleIdentifier;
    nlohmann::json (*list)();
    std::vector<const char*> shows;
};

class Pickers : public HostsTest, public testing::WithParamInterface<PickerCase> {};

// Hidden photos show nowhere, but in the stock album of hidden ones.
TEST_P(Pickers, list_albums_without_hidden_photos) {
    library().setHidden(photo(0).identifier, true);
    start(GetParam().bundleIdentifier);
    const auto rows = GetParam().list();
    for (const char* title : GetParam().shows)
        EXPECT_FALSE(rowTitled(rows, title).is_null()) << title;
    EXPECT_EQ(rowTitled(rows, "Holidays").at("photos").size(), 2U);
    EXPECT_EQ(rowTitled(rows, "Camera Roll").at("photos").size(), 9U);
}

INSTANTIATE_TEST_SUITE_P(
    Applications, Pickers,
    testing::Values(PickerCase{bundle::plain, plain::listPicker, {"Videos", "Family", "Pets"}},
                    PickerCase{bundle::settings, settings::listWallpapers, {"Videos", "Family", "Pets"}},
                    PickerCase{bundle::messenger, messenger::listComposer, {"Videos", "Family", "Pets"}},
                    PickerCase{bundle::whatsApp, pickers::list, {"Videos", "Family", "Pets"}},
                    PickerCase{bundle::imgur, pickers::list, {"Family", "Pets"}}),
    [](const auto& info) {
        std::string name(info.param.bundleIdentifier);
        std::ranges::replace(name, '.', '_');
        return name;
    });

TEST_F(HostsTest, settings_names_the_screen_that_chooses_a_wallpaper) {
    start(bundle::settings);
    settings::listWallpapers();
    UINavigationController* root =
        [[UIApplication sharedApplication] performSelector:@selector(rootController)];
    EXPECT_STREQ([[[[root navigationBar] topItem] title] UTF8String], "Choose");
}

TEST_F(HostsTest, messenger_previews_an_album_with_a_photo_and_opens_it) {
    start(bundle::messenger);
    const auto row = rowTitled(messenger::listMontage(), "Holidays");
    EXPECT_EQ(row.at("preview"), photo(0).identifier);
    EXPECT_EQ(row.at("opens"), true);
    EXPECT_TRUE(rowTitled(messenger::listMontage(), "Pets").at("preview").is_null());
}

TEST_F(HostsTest, plain_application_saves_its_picture_from_the_share_sheet) {
    start(bundle::plain);
    plain::saveImage();
    EXPECT_EQ(library().visibleAssets().size(), 11U);
}

TEST_F(HostsTest, an_application_in_a_process_of_its_own_does_what_it_is_told) {
    std::istringstream words(emulator());
    const std::vector<std::string> command{std::istream_iterator<std::string>(words), {}};
    HostProcess photos({.program = hostProgram(),
                        .bundleIdentifier = bundle::photos,
                        .device = device().folder(),
                        .library = std::nullopt,
                        .emulator = command});
    EXPECT_FALSE(rowTitled(photos.call("albums"), "Holidays").is_null());
    photos.call({{"do", "openAlbum"}, {"title", "Holidays"}});
    photos.call({{"do", "selectPhotos"}, {"places", {0}}});
    photos.call("removeSelection");
    photos.call({{"do", "alertAction"}, {"title", "Remove from Album"}});
    for (int attempt = 0; attempt < 500 && numbersIn("Holidays").size() == 3; ++attempt)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(numbersIn("Holidays").size(), 2U);
    photos.stop();
}

TEST_F(HostsTest, verbs_do_what_a_user_does) {
    start(bundle::photos);
    EXPECT_EQ(performVerb({{"do", "openAlbum"}, {"title", "Family"}}), nlohmann::json::object());
    EXPECT_EQ(performVerb({{"do", "selectPhotos"}, {"places", {0, 1}}}), nlohmann::json::object());
    EXPECT_EQ(standardExceptionOf([] { performVerb({{"do", "openAlbum"}, {"title", "Nothing"}}); }),
              "the album list has no album \"Nothing\"");
    EXPECT_FALSE(performVerb({{"do", "albums"}}).empty());
}

} // namespace
} // namespace simulator::test
