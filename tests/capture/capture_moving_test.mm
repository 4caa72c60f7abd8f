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

NSThread* moveThread = nil;
void (*originalMove)(id, SEL);
void noteThread(id self, SEL command) {
    moveThread = [NSThread currentThread];
    originalMove(self, command);
}

// A thread of a dispatch queue runs no run loop, on which a timer could fire.
TEST_F(Capture, moves_what_is_newest_a_moment_later_and_once_whatever_thread_reports_it) {
    openCamera("Pets");
    replaceMethod("CAMCaptureEngine", @selector(movePhoto), &noteThread, &originalMove);
    NSThread* runLoopThread = [[camera::viewfinder() captureController] captureThread];
    const struct {
        CaptureDelivery delivery;
        double due;
        NSThread* thread;
        std::size_t looks;
    } cases[] = {{CaptureDelivery::dispatchQueue, 1.2, [NSThread mainThread], 1},
                 {CaptureDelivery::runLoopThread, 0.9, runLoopThread, 0},
                 {CaptureDelivery::mainThread, 0.9, [NSThread mainThread], 0}};
    Numbers moved;
    for (const auto& each : cases) {
        change([&](Conditions& conditions) { conditions.captureDelivery = each.delivery; });
        const std::size_t timers = clock().pendingTimers();
        for (int photo = 0; photo < 3; ++photo) {
            camera::takePhoto();
            pass(0.1);
        }
        EXPECT_EQ(clock().pendingTimers() - timers, 3 * (1 + each.looks));
        pass(each.due - 0.31);
        expect({"Pets", true, moved, moved});
        pass(0.02);
        EXPECT_TRUE(moveThread == each.thread);
        const std::size_t first = 10 + moved.size();
        Numbers expected = moved;
        for (const std::size_t newest : {first + 2, first + 1, first}) {
            expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(moved.size()), newest);
            expect({"Pets", true, expected, expected});
            pass(newest == first ? 60 : 0.1);
        }
        expect({"Pets", true, expected, expected});
        moved = expected;
    }
}

TEST_F(Capture, is_moved_once_where_the_thread_of_a_queue_runs_its_run_loop_later) {
    openCamera("Pets");
    for (const double late : {0.9, untilMoved}) {
        auto* engine = [[CAMCaptureEngine alloc] init];
        NSError* failure = [NSError errorWithDomain:@"AVFoundationErrorDomain" code:-11800 userInfo:nil];
        const auto runWhereCapturesEnd = [&](std::function<void()> work) {
            bool isDone = false;
            [engine performWhereCapturesEnd:[&] {
                work();
                dispatch_async(dispatch_get_main_queue(), ^{
                    isDone = true;
                });
            }];
            waitFor([&] { return isDone; });
        };
        [engine captureStillImageWithError:failure];
        runWhereCapturesEnd([] {});
        [engine autorelease];
        pass(late);
        runWhereCapturesEnd([] {
            NSRunLoop* loop = [NSRunLoop currentRunLoop];
            [loop addPort:[[NSPort port] retain] forMode:NSDefaultRunLoopMode]; // without one it would return
            [loop runMode:NSDefaultRunLoopMode beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
        });
        settle();
        const Numbers expected = late == 0.9 ? Numbers{9} : Numbers{8, 9};
        expect({"Pets", true, expected, expected});
        pass(60);
        expect({"Pets", true, expected, expected});
    }
}

TEST_F(Capture, follows_choice_and_settings_of_the_moment_it_is_moved) {
    openCamera("Pets");
    camera::takePhoto();
    choose(cameraRoll);
    pass(untilMoved);
    expect({"Pets", true, {}, {}});
    camera::takePhoto();
    choose("Pets");
    setMoves(false);
    pass(untilMoved);
    expect({"Pets", false, {11}, {}});
    camera::takePhoto();
    for (const char* key : {"enabled", "enableCameraPicker"}) {
        reloadPreferences({{key, false}});
        pass(untilMoved);
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
    change([](Conditions& conditions) { conditions.captureDelivery = CaptureDelivery::mainThread; });
    openCamera();
    const auto captureWhileBusy = [&](double newer) {
        camera::failCapture();
        whileLibraryIsBusy([&] {
            clock().advance(untilMoved);
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
    change([](Conditions& conditions) { conditions.faults.missing = {photosUI}; });
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
