#import "CameraUI/CameraUI.h"

#import "PhotosUI/ScreenHelpers.h"

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

@synthesize captureThread = _captureThread;

- (instancetype)init {
    self = [super init];
    if (!self) return nil;
    _captureThread = [[NSThread alloc] initWithTarget:self selector:@selector(_runCaptureThread) object:nil];
    [_captureThread setName:@"com.apple.camera.capture-engine"];
    [_captureThread start];
    return self;
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
    simulator::performOnThread(_captureThread, [self, outcome] {
        [self captureOutput:nil didFinishCaptureForResolvedSettings:nil error:[outcome autorelease]];
    });
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
