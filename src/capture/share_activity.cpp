#include "capture/album_chooser.h"
#include "capture/hooks.h"
#include "capture/newest_photo.h"
#include "objc/global.h"
#include "objc/replacement.h"
#include "platform/core_foundation.h"
#include "settings/settings.h"

namespace rollkeeper {

namespace {

// The title of the last pick in this process; never persisted.
constinit MainThreadGlobal<NSString> saveActivityAlbum;

struct ActivityMethods {
    static constexpr FixedString className = "UISaveToCameraRollActivity";
    static void movePhoto(NSObject activity) { send<ActivityMethods, "movePhoto", void>(activity); }
    static void chooseAlbum(NSObject activity) { send<ActivityMethods, "chooseAlbum", void>(activity); }
};

// From iOS 10 on the system ends an application that fetches photos, unless it is authorized to or describes
// why it does so. One that only saves pictures need do neither.
bool mayFetchPhotos() {
    if (kCFCoreFoundationVersionNumber < coreFoundationVersion::ios10) return true;
    const bool isAuthorized = !classObject<PHPhotoLibrary>().respondsTo<"authorizationStatus">() ||
                              PHPhotoLibrary::authorizationStatus() == PHAuthorizationStatus::authorized;
    return isAuthorized ||
           NSBundle::mainBundle().objectForInfoDictionaryKey("NSPhotoLibraryUsageDescription"_ns);
}

UIViewController rootViewController() {
    return UIApplication::sharedApplication().keyWindow().rootViewController();
}

} // namespace

// A created album is only remembered: the shared photo stays where the share sheet put it.
constexpr AlbumChooserPolicy shareSheetChooserPolicy = {
    .picked =
        [](NSObject activity, NSString title) {
            saveActivityAlbum.set(title);
            ActivityMethods::movePhoto(activity);
        },
    .created = [](NSObject, NSString title) { saveActivityAlbum.set(title); },
    .presenter = [](NSObject) { return rootViewController(); },
    .anchor = [](NSObject) { return rootViewController().view(); },
};

namespace shareActivity {

NSObject performActivity(UISaveToCameraRollActivity self, SEL command) {
    const NSObject result = original<performActivity>(self, command);
    if (settings::enabled && settings::saveActivityEnabled && self.imageCount() >= 1 && mayFetchPhotos())
        ActivityMethods::chooseAlbum(self);
    return result;
}

// "Camera Roll" is a title like any other here: a user album of that name is found or created. Kept on
// purpose.
void movePhoto(UISaveToCameraRollActivity, SEL) {
    addNewestPhotoToAlbum(saveActivityAlbum.get());
    if (settings::saveActivityMove) hideNewestPhoto();
}

void chooseAlbum(UISaveToCameraRollActivity self, SEL) {
    presentAlbumChooser(AlbumChooser::shareSheet, self);
}

void createNewAlbum(UISaveToCameraRollActivity self, SEL) {
    presentNewAlbumAlert(AlbumChooser::shareSheet, self);
}

} // namespace shareActivity
} // namespace rollkeeper
