// The Camera and an application with a share sheet, with the library under test in the test's process. Time
// stands still, so that a capture is moved when a test says so.
#pragma once

#include "device/clock.h"
#include "hosts/applications/catalogue.h"
#include "support/photos_fixture.h"
#include "support/replacing.h"

#import "Photos/Photos.h"
#import "hosts/applications/camera/camera_app.h"

// Methods that the library adds.
@interface NSObject (AddedByTheLibrary)
- (void)chooseAlbum;
- (void)createNewAlbum;
- (void)movePhoto;
@end

namespace simulator::test {

inline constexpr const char* cameraRoll = "Camera Roll";
inline constexpr const char* newAlbum = "- Create new album -"; // the action
inline constexpr const char* longTitle = "A title that is far too long for a label under such a small button";

inline constexpr double untilMoved = 1.21; // seconds after a capture, whatever thread it ended on

inline constexpr const char* photosUI = "/System/Library/Frameworks/PhotosUI.framework";

// What an album holds, and what is hidden at all, after a photo was put into it.
struct Step {
    const char* album;
    bool moves;
    Numbers inAlbum;
    Numbers hidden;
};

class CaptureTest : public PhotosTest {
  protected:
    // With an album that exists as the Camera's, or without one.
    void openCamera(const std::string& album = {}, json preferences = json::object()) {
        device().writePropertyList(file::cameraAlbum, {album});
        if (!album.empty()) preferences["rememberDefault"] = true;
        open(host::camera, preferences);
        layOutScreen();
    }
    void open(const char* bundleIdentifier, const json& preferences = json::object()) {
        useManualClock();
        writePreferences(preferences);
        start(bundleIdentifier);
    }

    CAMBottomBar* bar() { return [camera::viewfinder() bottomBar]; }
    UIView* albumImage() { return [bar() viewWithTag:77]; }
    UILabel* albumLabel() { return static_cast<UILabel*>([[bar() backgroundView] viewWithTag:78]); }
    // What the label says, which must be where it belongs when its text is measured within the bounds.
    std::string labelMeasuredIn(CGSize bounds) {
        const CGSize size = [[albumLabel() text] sizeWithFont:[UIFont systemFontOfSize:12]
                                            constrainedToSize:bounds
                                                lineBreakMode:NSLineBreakByTruncatingTail];
        const CGPoint at = [albumImage() center];
        const CGPoint origin = {at.x - size.width / 2, at.y + 28 - size.height / 2};
        EXPECT_EQ([albumLabel() frame], (CGRect{origin, size}));
        return text([albumLabel() text]);
    }
    // Opens the Camera's chooser with a finger and answers it.
    void choose(const std::string& action) {
        tap(albumImage());
        tapAlertAction(action);
    }
    // Answers the chooser that is open with a new album.
    void createAlbum(const std::string& title) {
        tapAlertAction(newAlbum);
        typeText(0, title);
        tapAlertAction("OK");
    }

    // Captures, or fails to, and lets what then is due happen.
    void capture(void (*action)() = camera::takePhoto) {
        action();
        pass(untilMoved);
    }
    void pass(double seconds) {
        clock().advance(seconds);
        camera::waitForCaptureThread();
        settle();
    }
    void setMoves(bool moves) {
        reloadPreferences({{"pickerMovePhotos", moves}, {"saveActivityMove", moves}});
    }
    // Saves pictures as the share sheet does, which then asks; they are in the library a little later.
    UISaveToCameraRollActivity* save(std::size_t pictures = 1) {
        NSMutableArray* items = [NSMutableArray arrayWithObject:@"a text"];
        for (std::size_t picture = 0; picture < pictures; ++picture)
            [items addObject:[UIImage imageWithPixelSize:CGSizeMake(8, 6) seed:picture]];
        UISaveToCameraRollActivity* activity = [[[UISaveToCameraRollActivity alloc] init] autorelease];
        [activity prepareWithActivityItems:items];
        [activity performActivity];
        return activity;
    }
    void answer(const std::string& action) {
        settle();
        tapAlertAction(action);
        settle();
    }

    void expect(const Step& step) {
        SCOPED_TRACE(testing::Message() << step.album << (step.moves ? " moves" : " copies"));
        EXPECT_EQ(numbersIn(step.album), step.inAlbum);
        EXPECT_EQ(hiddenNumbers(), step.hidden);
    }
    void deleteAlbum(const std::string& title) {
        Change change;
        change.add(Change::DeleteCollection{library().albumTitled(title).value().identifier});
        library().apply(change);
    }
};

} // namespace simulator::test
