#import "CameraUI/CameraUI.h"

#import "Dispatch/Dispatch.h"
#import "Photos/Photos.h"

#include "device/threads.h"

NSString* const CAMCaptureDidSaveNotification = @"CAMCaptureDidSaveNotification";

namespace {
constexpr CGSize photoPixels = {400, 300};
}

@implementation CAMCaptureController

- (instancetype)init {
    self = [super init];
    if (!self) return nil;
    _photoOutput = [[AVCapturePhotoOutput alloc] init];
    _captureThread = [[NSThread alloc] initWithTarget:self selector:@selector(_runCaptureThread) object:nil];
    [_captureThread setName:@"com.apple.camera.capture-engine"];
    [_captureThread start];
    return self;
}

- (NSThread*)captureThread {
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

- (void)captureStillImageWithError:(NSError*)error {
    CAMCaptureController* controller = self;
    NSError* outcome = [error retain];
    simulator::performOnThread(_captureThread, [controller, outcome] {
        auto settings = [[[AVCaptureResolvedPhotoSettings alloc] initWithUniqueID:++controller->_lastCapture]
            autorelease];
        [controller captureDidFinishWithSettings:settings error:[outcome autorelease]];
    });
}

- (void)captureDidFinishWithSettings:(AVCaptureResolvedPhotoSettings*)settings error:(NSError*)error {
    if (error) return;
    NSUInteger seed = static_cast<NSUInteger>([settings uniqueID]);
    [self _saveToLibrary:^{
        [PHAssetChangeRequest creationRequestForAssetFromImage:[UIImage imageWithPixelSize:photoPixels
                                                                                      seed:seed]];
    }];
}

- (void)captureVideo {
    NSURL* recording = [NSURL fileURLWithPath:@"/var/mobile/Media/DCIM/recording.mov"];
    [self _saveToLibrary:^{
        [PHAssetChangeRequest creationRequestForAssetFromVideoAtFileURL:recording];
    }];
}

- (void)_saveToLibrary:(void (^)(void))creation {
    [[PHPhotoLibrary sharedPhotoLibrary] performChanges:creation
                                      completionHandler:^(BOOL success, NSError*) {
                                          if (!success) return;
                                          dispatch_async(dispatch_get_main_queue(), ^{
                                              [[NSNotificationCenter defaultCenter]
                                                  postNotificationName:CAMCaptureDidSaveNotification
                                                                object:self];
                                          });
                                      }];
}

@end

@implementation CAMCaptureEngine

- (void)captureDidFinishWithSettings:(AVCaptureResolvedPhotoSettings*)settings error:(NSError*)error {
    [self captureOutput:_photoOutput didFinishCaptureForResolvedSettings:settings error:error];
}

- (void)captureOutput:(AVCapturePhotoOutput*)output
    didFinishCaptureForResolvedSettings:(AVCaptureResolvedPhotoSettings*)settings
                                  error:(NSError*)error {
    [super captureDidFinishWithSettings:settings error:error];
}

@end
