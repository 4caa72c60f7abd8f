#pragma once

#import "UIKit/UIKit.h"

#include <atomic>

/// Runs the camera. Captures end on a thread of its own that runs a run loop; the engine lives as long as the
/// process.
@interface CAMCaptureEngine : NSObject {
    NSThread* _captureThread;
    std::atomic<NSUInteger> _capturesSaved;
}
@property (nonatomic, readonly) NSThread* captureThread;
/// What the camera points at: the next photo. Any thread.
- (UIImage*)pictureInSight;
/// Takes a photo, which fails when there is an error; the end of the capture follows on the capture thread.
/// Any thread.
- (void)captureStillImageWithError:(NSError*)error;
/// Records a video, which then is in the library. Any thread.
- (void)captureVideo;
/// Puts the photo into the library, unless the capture failed. The output and the settings that were used are
/// nil here. Capture thread.
- (void)captureOutput:(id)output didFinishCaptureForResolvedSettings:(id)settings error:(NSError*)error;
@end

/// Posted on the main thread when a photo or video of the engine (the object) has reached the library.
extern NSString* const CAMCaptureDidSaveNotification;

/// The small picture of the newest photo beside the shutter button.
@interface CAMImageWell : UIButton {
    UIImage* _thumbnailImage;
}
@property (nonatomic, retain) UIImage* thumbnailImage;
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
    CAMCaptureEngine* _captureController;
    CAMBottomBar* _bottomBar;
    UIImageView* _previewView;
}
@property (nonatomic, readonly) CAMCaptureEngine* captureController;
@property (nonatomic, readonly) CAMBottomBar* bottomBar;
@end

/// A button that some third-party camera tools put into the bottom bar.
@interface CustomDrawButton : UIButton
@end
