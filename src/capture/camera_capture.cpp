#include "capture/hooks.h"
#include "capture/newest_photo.h"
#include "capture/selected_album.h"
#include "common/albums.h"
#include "objc/replacement.h"
#include "settings/settings.h"

namespace rollkeeper::camera {

namespace {

constexpr NSTimeInterval captureReachesLibrary = 0.9;
constexpr CGSize thumbnailSize = {175, 175};

} // namespace

// A failed capture moves a photo as well: the newest one then.
NSObject didFinishCapture(CAMCaptureEngine self, SEL command, NSObject output, NSObject captureSettings,
                          NSError error) {
    const NSObject result = original<didFinishCapture>(self, command, output, captureSettings, error);
    if (settings::enabled && settings::enableCameraPicker)
        NSTimer::sendOnce(captureReachesLibrary, self, selector<"movePhoto">());
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
