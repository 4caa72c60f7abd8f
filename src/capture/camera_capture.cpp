#include "capture/hooks.h"
#include "capture/newest_photo.h"
#include "capture/selected_album.h"
#include "common/albums.h"
#include "objc/replacement.h"
#include "settings/settings.h"

namespace rollkeeper::camera {

namespace {

constexpr NSTimeInterval captureReachesLibrary = 0.9;
constexpr NSTimeInterval timerHasHadItsTurn = 1.2;
constexpr CGSize thumbnailSize = {175, 175};

// Main thread, in the place of a timer whose thread has not come to fire it. A timer should be invalidated on
// its own thread, since its run loop may keep it otherwise, but that thread may have ended by now. What
// matters holds on any thread: it never fires again, not even when the thread runs its run loop some day.
void moveInPlaceOf(NSTimer timer, CAMCaptureEngine engine) {
    if (!timer.isValid()) return;
    timer.invalidate();
    engine.movePhoto();
}

} // namespace

// Captures ordinarily end on a thread of a dispatch queue. That runs no run loop, so a timer on it waits for
// ever; it is looked at once more from the main thread then.
//
// A failed capture moves a photo as well: the newest one then.
NSObject didFinishCapture(CAMCaptureEngine self, SEL command, NSObject output, NSObject captureSettings,
                          NSError error) {
    const NSObject result = original<didFinishCapture>(self, command, output, captureSettings, error);
    if (!settings::enabled || !settings::enableCameraPicker) return result;
    const NSTimer timer = NSTimer::sendOnce(captureReachesLibrary, self, selector<"movePhoto">());
    if (!NSThread::isMainThread() && !NSRunLoop::currentRunLoop().currentMode())
        onMainQueueAfter(timerHasHadItsTurn, moveInPlaceOf, share(timer), share(self));
    return result;
}

// Adding and hiding are started one after the other and wait for nothing: with an album that is still to be
// created, the photo to add is looked up again later.
void movePhoto(CAMCaptureEngine, SEL) {
    const NSString album = selectedAlbum();
    if (album.isEqualToString(cameraRollTitle())) return;
    addNewestPhotoToAlbum(album);
    if (settings::pickerMovePhotos) hideNewestPhoto();
}

// The newest photo that is still in the Camera Roll.
UIImage thumbnailImage(CAMImageWell self, SEL command) {
    if (!settings::enabled) return original<thumbnailImage>(self, command);

    const Owner<PHFetchOptions> fetchOptions = make<PHFetchOptions>();
    fetchOptions->setIncludeHiddenAssets(false);
    const PHAsset photo = newestPhoto(fetchOptions);
    if (!photo) return UIImage();
    const Owner<PHImageRequestOptions> options = make<PHImageRequestOptions>();
    options->setResizeMode(PHImageRequestOptionsResizeMode::exact);
    options->setSynchronous(true);
    // The image lives only as long as the handler's call, unless it is kept.
    const Owner<NSMutableArray> images = make<NSMutableArray>();
    PHImageManager::defaultManager().requestImage(
        photo, thumbnailSize, PHImageContentMode::aspectFit, options,
        block<void(UIImage, NSDictionary)>(
            [](NSMutableArray kept, UIImage image, NSDictionary) { kept.addObject(image); }, images));
    return autoreleased(share(cast<UIImage>(images->firstObject())));
}

} // namespace rollkeeper::camera
