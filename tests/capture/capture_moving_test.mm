// What becomes of the newest photo after a capture, and what the image well shows.
#include "capture/capture_fixture.h"

namespace simulator::test {
namespace {

using Capture = CaptureTest;

TEST_F(Capture, goes_into_the_chosen_album_and_leaves_the_camera_roll_if_wanted) {
    library().addAlbum(cameraRoll);
    for (const char* title : {"Twice as much", "Twice", "Twice"})
        library().addAlbum(title);
    hide({0, 1});
    lockAlbums({"Holidays"});
    openCamera();
    constexpr const char* formatted = "%@ \"it's\" *\\";
    const Step steps[] = {{cameraRoll, true, {}, {0, 1}},
                          {cameraRoll, false, {}, {0, 1}},
                          {"Holidays", false, {0, 1, 2, 12}, {0, 1}},
                          {"Work", true, {6, 13}, {0, 1, 13}},
                          {"Work", false, {6, 13, 14}, {0, 1, 13}},
                          {"Twice", true, {15}, {0, 1, 13, 15}},
                          {formatted, false, {16}, {0, 1, 13, 15}},
                          {formatted, true, {16, 17}, {0, 1, 13, 15, 17}},
                          {"New", true, {18}, {0, 1, 13, 15, 17, 18}}};
    for (const Step& step : steps) {
        setMoves(step.moves);
        tap(albumImage());
        library().albumTitled(step.album) ? tapAlertAction(step.album) : createAlbum(step.album);
        capture();
        expect(step);
    }
    EXPECT_EQ(library().collections(CollectionKind::album).size(), 10U) << "no title was created twice";
}

bool movedOnCaptureThread = false;
void (*originalMove)(id, SEL);
void noteThread(id self, SEL command) {
    movedOnCaptureThread =
        [NSThread currentThread] == [[camera::viewfinder() captureController] captureThread];
    originalMove(self, command);
}

TEST_F(Capture, moves_what_is_newest_a_moment_later_once_and_on_the_thread_that_reported_it) {
    openCamera("Pets");
    replaceMethod("CAMCaptureEngine", @selector(movePhoto), &noteThread, &originalMove);
    for (int photo = 0; photo < 3; ++photo) {
        camera::takePhoto();
        pass(0.1);
    }
    pass(0.59);
    expect({"Pets", true, {}, {}});
    pass(0.02);
    EXPECT_TRUE(movedOnCaptureThread);
    expect({"Pets", true, {12}, {12}});
    pass(0.1);
    expect({"Pets", true, {11, 12}, {11, 12}});
    pass(60);
    expect({"Pets", true, {10, 11, 12}, {10, 11, 12}});
}

TEST_F(Capture, follows_choice_and_settings_of_the_moment_it_is_moved) {
    openCamera("Pets");
    camera::takePhoto();
    choose(cameraRoll);
    pass(0.9);
    expect({"Pets", true, {}, {}});
    camera::takePhoto();
    choose("Pets");
    setMoves(false);
    pass(0.9);
    expect({"Pets", false, {11}, {}});
    camera::takePhoto();
    for (const char* key : {"enabled", "enableCameraPicker"}) {
        reloadPreferences({{key, false}});
        pass(0.9);
        capture();
        expect({"Pets", true, {11, 12}, {12}}); // what was scheduled is done, and no more
    }
}

TEST_F(Capture, that_fails_moves_the_newest_visible_photo) {
    openCamera("Pets");
    hide({9});
    for (const Numbers& expected : {Numbers{8}, Numbers{6, 8}, Numbers{5, 6, 8}}) {
        capture(camera::failCapture);
        EXPECT_EQ(numbersIn("Pets"), expected) << "7 is a video";
    }
    camera::takeVideo();
    capture(camera::failCapture);
    expect({"Pets", true, {4, 5, 6, 8}, {4, 5, 6, 8, 9}});
    hide({0, 1, 2, 3});
    deleteAlbum("Pets");
    capture(camera::failCapture);
    EXPECT_TRUE(library().albumTitled("Pets")) << "a title that has gone is created again";
    EXPECT_EQ(numbersIn("Pets"), Numbers{}) << "there is no photo";
}

// A photo that arrives while the library is busy is newer than the one that is hidden.
TEST_F(Capture, is_looked_up_at_once_but_anew_for_an_album_that_is_created_first) {
    openCamera();
    const auto captureWhileBusy = [&](double newer) {
        camera::failCapture();
        whileLibraryIsBusy([&] {
            clock().advance(0.9);
            camera::waitForCaptureThread();
            library().addAsset({.created = newer});
        });
    };
    choose("Pets");
    captureWhileBusy(600'000'000);
    expect({"Pets", true, {9}, {9}});
    choose("Work");
    deleteAlbum("Work");
    captureWhileBusy(700'000'000);
    expect({"Work", true, {11}, {9, 10}});
}

void (*originalPerform)(id, SEL, id, void (^)(BOOL, NSError*));
void performAndReportFailure(id self, SEL command, id changes, void (^completion)(BOOL, NSError*)) {
    originalPerform(self, command, changes, ^(BOOL, NSError*) {
        completion(NO, nil);
    });
}

TEST_F(Capture, is_not_added_to_an_album_whose_creation_failed) {
    openCamera("Pets");
    deleteAlbum("Pets");
    replaceMethod("PHPhotoLibrary", @selector(performChanges:completionHandler:), &performAndReportFailure,
                  &originalPerform);
    capture(camera::failCapture);
    EXPECT_TRUE(library().albumTitled("Pets")) << "it is there all the same";
    expect({"Pets", true, {}, {9}});
}

TEST_F(Capture, is_added_even_where_nothing_can_be_hidden) {
    setHasFramework(host::camera, "PhotosUI", false);
    openCamera("Pets");
    capture();
    expect({"Pets", true, {10}, {}});
}

class Releases : public CaptureTest, public testing::WithParamInterface<Release> {};

TEST_P(Releases, offer_and_do_what_they_can) {
    const Release release = GetParam();
    change([&](Conditions& conditions) { conditions.release = release; });
    openCamera({}, {{"saveActivityMove", true}});
    ASSERT_EQ(albumImage() != nil, release >= Release::ios8_4);
    [[bar() imageWell] updateThumbnail];
    UISaveToCameraRollActivity* activity = save();
    ASSERT_EQ(frontAlert() != nil, release >= Release::ios8_4);
    if (release < Release::ios8_4)
        return [activity createNewAlbum], [activity movePhoto], [bar() chooseAlbum];
    answer("Work");
    const Numbers saved = release >= Release::ios9_3 ? Numbers{10} : Numbers{};
    expect({"Work", true, {6, 10}, saved});
    choose("Pets");
    capture(camera::failCapture);
    if (release >= Release::ios10_1) return expect({"Pets", true, {9}, {9, 10}});
    expect({"Pets", true, {}, saved});
}

INSTANTIATE_TEST_SUITE_P(All, Releases, testing::ValuesIn(allReleases));

NSInteger resizeMode = 0;
void (*originalSetResizeMode)(id, SEL, NSInteger);
void noteResizeMode(id, SEL, NSInteger mode) { resizeMode = mode; }

TEST_F(CaptureTest, image_well_shows_the_newest_photo_still_in_the_camera_roll) {
    openCamera("Pets");
    CAMImageWell* well = [bar() imageWell];
    const auto showsSample = [&](std::size_t number) {
        UIImage* expected = [UIImage imageWithPixelSize:CGSizeMake(175, 131) seed:number];
        return [UIImagePNGRepresentation([well thumbnailImage]) isEqual:UIImagePNGRepresentation(expected)];
    };
    replaceMethod("PHImageRequestOptions", @selector(setResizeMode:), &noteResizeMode,
                  &originalSetResizeMode);
    UIImage* own = [UIImage imageWithPixelSize:CGSizeMake(8, 8) seed:99];
    [well setThumbnailImage:own];
    EXPECT_TRUE(showsSample(9) && resizeMode == 2) << "of exactly that size";
    capture(camera::failCapture);
    EXPECT_TRUE(showsSample(8)) << "9 was moved";
    hide({8});
    EXPECT_TRUE(showsSample(6)) << "7 is a video";
    reloadPreferences({{"enableCameraPicker", false}});
    EXPECT_TRUE(showsSample(6)) << "whatever the album button";
    reloadPreferences({{"enabled", false}});
    EXPECT_TRUE([well thumbnailImage] == own);
    reloadPreferences(json::object());
    hide({0, 1, 2, 3, 4, 5, 6});
    EXPECT_TRUE([well thumbnailImage] == nil) << "there is none";
}

} // namespace
} // namespace simulator::test
