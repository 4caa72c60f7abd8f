// The methods of the Camera and of the share sheet that are replaced and added.
#pragma once

#include "platform/camera.h"

namespace rollkeeper {

namespace camera {

// CAMCaptureEngine, on the thread that delivers captures. A device's method returns nothing; whatever it
// leaves as a result is handed back untouched.
NSObject didFinishCapture(CAMCaptureEngine self, SEL command, NSObject output, NSObject settings,
                          NSError error);
void movePhoto(CAMCaptureEngine self, SEL command);

// CAMBottomBar and CAMImageWell, main thread.
void layoutBottomBar(CAMBottomBar self, SEL command);
void chooseAlbum(CAMBottomBar self, SEL command);
void createNewAlbum(CAMBottomBar self, SEL command);
UIImage thumbnailImage(CAMImageWell self, SEL command);

} // namespace camera

// UISaveToCameraRollActivity, in every process with a share sheet. Main thread.
namespace shareActivity {

// A device's method returns nothing; whatever it leaves as a result is handed back untouched.
NSObject performActivity(UISaveToCameraRollActivity self, SEL command);
void movePhoto(UISaveToCameraRollActivity self, SEL command);
void chooseAlbum(UISaveToCameraRollActivity self, SEL command);
void createNewAlbum(UISaveToCameraRollActivity self, SEL command);

} // namespace shareActivity

} // namespace rollkeeper
