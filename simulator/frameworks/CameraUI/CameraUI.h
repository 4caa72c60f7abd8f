#pragma once

#import "AVFoundation/AVFoundation.h"
#import "UIKit/UIKit.h"

@class CAMCaptureEngine, CAMImageWell;

/// Runs the camera. Its callbacks arrive on a thread of its own that runs a run loop; the engine lives as
/// long as the process.
@interface CAMCaptureEngine : NSObject {
    NSThread* _captureThread;
    AVCapturePhotoOutput* _photoOutput;
    int64_t _lastCapture;
}
/// Takes a photo: the callback below follows on the capture thread, with the error when there is one. Any
/// thread.
- (void)captureStillImageWithError:(NSError*)error;
/// Records a video, which then is in the library. Any thread.
- (void)captureVideo;
/// Puts the photo into the library, unless the capture failed.
- (void)captureOutput:(AVCapturePhotoOutput*)output
    didFinishCaptureForResolvedSettings:(AVCaptureResolvedPhotoSettings*)settings
                                  error:(NSError*)error;
- (NSThread*)captureThread;
@end

/// Posted on the main thread when a photo or video of the engine (the object) has reached the library.
extern NSString* const CAMCaptureEngineDidSaveNotification;

/// The small picture of the newest photo beside the shutter button.
@interface CAMImageWell : UIButton {
    UIImage* _thumbnailImage;
}
@property (nonatomic, readonly) UIImage* thumbnailImage;
- (void)setThumbnailImage:(UIImage*)image;
/// Shows what `thumbnailImage` says now.
- (void)updateThumbnail;
@end

/// The bar with shutter button and image well.
@interface CAMBottomBar : UIView {
    UIView* _backgroundView;
    CAMImageWell* _imageWell;
    UIButton* _shutterButton;
}
@property (nonatomic, readonly) UIView* backgroundView;
@property (nonatomic, readonly) CAMImageWell* imageWell;
@property (nonatomic, readonly) UIButton* shutterButton;
@end

/// The screen of the camera.
@interface CAMViewfinderViewController : UIViewController {
    CAMCaptureEngine* _captureEngine;
    CAMBottomBar* _bottomBar;
}
@property (nonatomic, readonly) CAMCaptureEngine* captureEngine;
@property (nonatomic, readonly) CAMBottomBar* bottomBar;
@end
