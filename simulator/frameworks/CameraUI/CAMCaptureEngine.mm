#import "CameraUI/CameraUI.h"

#import "PhotosUI/ScreenHelpers.h"

#include "device/conditions.h"
#include "device/threads.h"

NSString* const CAMCaptureDidSaveNotification = @"CAMCaptureDidSaveNotification";

namespace {
constexpr CGSize photoPixels = {400, 300};
constexpr NSUInteger firstScenery = 101; // other ones than a sample library's

UIImage* pictureNumbered(NSUInteger capture) {
    return [UIImage imageWithPixelSize:photoPixels seed:firstScenery + capture];
}

} // namespace

@implementation CAMCaptureEngine

- (instancetype)init {
    self = [super init];
    if (!self) return nil;
    _captureQueue = dispatch_queue_create("com.apple.camera.capture-results", DISPATCH_QUEUE_SERIAL);
    return self;
}

// The thread keeps the engine.
- (NSThread*)captureThread {
    if (_captureThread != nil) return _captureThread;
    _captureThread = [[NSThread alloc] initWithTarget:self selector:@selector(_runCaptureThread) object:nil];
    [_captureThread setName:@"com.apple.camera.capture-engine"];
    [_captureThread start];
    return _captureThread;
}

- (void)_runCaptureThread {
    // A run loop without a source returns at once, so it gets a port that nothing ever sends to; it does not
    // own it.
    @autoreleasepool {
        [[NSRunLoop currentRunLoop] addPort:[[NSPort port] retain] forMode:NSDefaultRunLoopMode];
    }
    for (;;) {
        @autoreleasepool {
            [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantFuture]];
        }
    }
}

- (UIImage*)pictureInSight {
    return pictureNumbered(_capturesSaved);
}

- (void)captureStillImageWithError:(NSError*)error {
    NSError* outcome = [error retain];
    [self performWhereCapturesEnd:[self, outcome] {
        [self captureOutput:nil didFinishCaptureForResolvedSettings:nil error:[outcome autorelease]];
    }];
}

- (void)performWhereCapturesEnd:(std::function<void()>)work {
    switch (simulator::currentConditions()->captureDelivery) {
    case simulator::CaptureDelivery::dispatchQueue:
        return dispatch_async(_captureQueue, ^{
            work();
        });
    case simulator::CaptureDelivery::runLoopThread:
        return simulator::performOnThread([self captureThread], std::move(work));
    case simulator::CaptureDelivery::mainThread:
        return simulator::performOnMainThread(std::move(work));
    }
}

- (void)captureOutput:(id)output didFinishCaptureForResolvedSettings:(id)settings error:(NSError*)error {
    if (error != nil) return;
    const NSUInteger number = _capturesSaved++;
    [self _saveToLibrary:^{
        [PHAssetChangeRequest creationRequestForAssetFromImage:pictureNumbered(number)];
    }];
}

- (void)captureVideo {
    NSURL* recording = [NSURL fileURLWithPath:@"/var/mobile/Media/DCIM/recording.mov"];
    [self _saveToLibrary:^{
        [PHAssetChangeRequest creationRequestForAssetFromVideoAtFileURL:recording];
    }];
}

- (void)_saveToLibrary:(void (^)(void))creation {
    simulator::changeLibrary(creation, ^(BOOL success) {
        if (success)
            [[NSNotificationCenter defaultCenter] postNotificationName:CAMCaptureDidSaveNotification
                                                                object:self];
    });
}

@end
