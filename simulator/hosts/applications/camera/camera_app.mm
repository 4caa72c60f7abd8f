#include "hosts/applications/camera/camera_app.h"

#import "UIKit/ViewTree.h"

#include "device/threads.h"
#include "hosts/applications/catalogue.h"
#include "hosts/applications/common/screen.h"
#include "hosts/host.h"
#include "photolibrary/library.h"

#include <atomic>
#include <memory>

namespace simulator::camera {

namespace {

std::size_t assetCount() { return sharedPhotoLibrary().assets({.includeHidden = true}).size(); }

void waitForNewAsset(std::size_t before) {
    waitUntil([before] { return assetCount() > before; }, "the capture in the photo library");
}

} // namespace

CAMViewfinderViewController* viewfinder() {
    return [static_cast<CAMCameraApplication*>([UIApplication sharedApplication]) viewfinderViewController];
}

void takePhoto() {
    const std::size_t before = assetCount();
    tap([[viewfinder() bottomBar] shutterButton]);
    waitForNewAsset(before);
    waitForCaptureThread();
}

void failCapture() {
    NSError* error = [NSError errorWithDomain:@"AVFoundationErrorDomain" code:-11800 userInfo:nil];
    [[viewfinder() captureController] captureStillImageWithError:error];
    waitForCaptureThread();
}

void takeVideo() {
    const std::size_t before = assetCount();
    [[viewfinder() captureController] captureVideo];
    waitForNewAsset(before);
}

void addDrawButton() {
    loadFramework("CustomDraw");
    CAMBottomBar* bar = [viewfinder() bottomBar];
    CustomDrawButton* button =
        [[[CustomDrawButton alloc] initWithFrame:CGRectMake(60, 30, 28, 28)] autorelease];
    [bar addSubview:button];
    [bar setNeedsLayout];
    layOutScreen();
}

void waitForCaptureThread() {
    auto done = std::make_shared<std::atomic<bool>>(false);
    performOnThread([[viewfinder() captureController] captureThread], [done] { *done = true; });
    waitUntil([&] { return done->load(); }, "the capture thread");
}

void addVerbs() {
    const struct {
        const char* name;
        void (*action)();
    } verbs[] = {{"takePhoto", takePhoto},
                 {"failCapture", failCapture},
                 {"takeVideo", takeVideo},
                 {"addDrawButton", addDrawButton}};
    for (auto verb : verbs)
        registerVerb(verb.name, [action = verb.action](const nlohmann::json&) {
            action();
            return nlohmann::json::object();
        });
}

} // namespace simulator::camera
