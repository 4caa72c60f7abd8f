#pragma once

#import "AVFoundation/AVFoundation.h"
#import "UIKit/UIKit.h"

@class CAMImageWell;

/// Runs the camera, and is all of it before iOS 9. Captures end on a thread of its own that runs a run loop;
/// the controller lives as long as the process.
@interface CAMCaptureController : NSObject {
    NSThread* _captureThread;
    AVCapturePhotoOutput* _photoOutput;
    int64_t _lastCapture;
}
/// Takes a photo, which fails when there is an error; the end of the capture follows on the capture thread.
/// Any thread.
- (void)captureStillImageWithError:(NSError*)error;
/// Records a video, which then is in the library. Any thread.
- (void)captureVideo;
- (NSThread*)captureThread;
/// Puts the photo into the library, unless the capture failed. Capture thread.
- (void)captureDidFinishWithSettings:(AVCaptureResolvedPhotoSettings*)settings error:(NSError*)error;
@end

/// The camera from iOS 9 on: it is told of the end of a capture by the photo output.
@interface CAMCaptureEngine : CAMCaptureController
- (void)captureOutput:(AVCapturePhotoOutput*)output
    didFinishCaptureForResolvedSettings:(AVCaptureResolvedPhotoSettings*)settings
                                  error:(NSError*)error;
@end

/// Posted on the main thread when a photo or video of the controller (the object) has reached the library.
extern NSString* const CAMCaptureDidSaveNotification;

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
    CAMCaptureController* _captureController;
    CAMBottomBar* _bottomBar;
}
@property (nonatomic, readonly) CAMCaptureController* captureController;
@property (nonatomic, readonly) CAMBottomBar* bottomBar;
@end
