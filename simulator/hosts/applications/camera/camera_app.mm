#include "hosts/applications/camera/camera_app.h"

#import "UIKit/ViewTree.h"

#include "device/releases.h"
#include "device/threads.h"
#include "hosts/applications/common/screen.h"
#include "hosts/host.h"

#include <nlohmann/json.hpp>

#include <atomic>
#include <memory>

namespace simulator::camera {

CAMViewfinderViewController* viewfinder() {
    // Looked for once, on the main thread: afterwards any thread may ask.
    static auto* const found = static_cast<CAMViewfinderViewController*>(
        [[[UIApplication sharedApplication] keyWindow] rootViewController]);
    return found;
}

void takePhoto() {
    waitForNewPhoto([] { tap([[viewfinder() bottomBar] shutterButton]); });
    waitForCaptureThread();
}

void failCapture() {
    NSError* error = [NSError errorWithDomain:@"AVFoundationErrorDomain" code:-11800 userInfo:nil];
    [[viewfinder() captureController] captureStillImageWithError:error];
    waitForCaptureThread();
}

void takeVideo() {
    waitForNewPhoto([] { [[viewfinder() captureController] captureVideo]; });
}

void addDrawButton() {
    addLoadedFramework("CustomDraw");
    CAMBottomBar* bar = [viewfinder() bottomBar];
    [bar addSubview:[[[CustomDrawButton alloc] initWithFrame:CGRectMake(60, 30, 28, 28)] autorelease]];
    [bar setNeedsLayout];
    layOutScreen();
}

void waitForCaptureThread() {
    CAMCaptureEngine* engine = [viewfinder() captureController];
    if (engine == nil) return; // before iOS 9
    auto done = std::make_shared<std::atomic<bool>>(false);
    [engine performWhereCapturesEnd:[done] { *done = true; }];
    waitUntil([&] { return done->load(); }, "the capture thread");
}

void addVerbs() { registerVerb("takePhoto", takePhoto); }

} // namespace simulator::camera
