#pragma once

#import "Dispatch/Dispatch.h"
#import "UIKit/UIKit.h"

#include <atomic>
#include <functional>

/// Runs the camera. Captures end where the device's conditions say, ordinarily on a queue of the engine's
/// own.
@interface CAMCaptureEngine : NSObject {
    dispatch_queue_t _captureQueue;
    NSThread* _captureThread;
    std::atomic<NSUInteger> _capturesSaved;
}
/// Runs a run loop; captures end on it where the conditions ask for that. It keeps the engine alive, and is
/// made when it is first asked for.
@property (nonatomic, readonly) NSThread* captureThread;
/// What the camera points at: the next photo. Any thread.
- (UIImage*)pictureInSight;
/// Does the work behind the ends of captures that are on their way.
- (void)performWhereCapturesEnd:(std::function<void()>)work;
/// Takes a photo, which fails when there is an error; the end of the capture follows.
/// Any thread.
- (void)captureStillImageWithError:(NSError*)error;
/// Records a video, which then is in the library. Any thread.
- (void)captureVideo;
/// Puts the photo into the library, unless the capture failed. The output and the settings that were used are
/// nil here. Where captures end.
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
