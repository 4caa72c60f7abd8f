/// What a user does in the Camera. Main thread; the running application must be it.
#pragma once

#import "CameraUI/CameraUI.h"

namespace simulator::camera {

CAMViewfinderViewController* viewfinder();

/// Presses the shutter and waits until the photo is in the library. The time after the capture is not waited
/// for.
void takePhoto();

/// A capture that fails: its callback has run on the capture thread when this returns.
void failCapture();

/// Records a video and waits until it is in the library.
void takeVideo();

/// Puts a third-party tool's button into the bottom bar, with its class.
void addDrawButton();

/// Waits until the capture thread has done everything that was handed to it before.
void waitForCaptureThread();

/// {"do": "takePhoto"}.
void addVerbs();

} // namespace simulator::camera
