#include "hosts/applications/catalogue.h"

#import "UIKit/UIKit.h"

#include "device/releases.h"
#include "hosts/applications/bundle_identifiers.h"
#include "hosts/applications/camera/camera_app.h"
#include "hosts/applications/messenger/messenger_app.h"
#include "hosts/applications/photos/photos_app.h"
#include "hosts/applications/pickers.h"
#include "hosts/applications/plain/plain_app.h"
#include "hosts/applications/settings/settings_app.h"

#include <objc/runtime.h>

#include <algorithm>
#include <stdexcept>

namespace simulator {

namespace {

// The classes that some processes have and others have not.
const struct {
    std::string_view framework;
    std::vector<std::string> classes;
} frameworks[] = {
    {"PhotosUI",
     {"PUAlbumListCell",
      "PUAlbumListCellContentView",
      "PUAlbumListTableViewCell",
      "PUAlbumListViewController",
      "PUAlbumPickerSessionInfo",
      "PUAssetHidingHelper",
      "PUAssetReference",
      "PUAssetViewModel",
      "PUBrowsingSession",
      "PUBrowsingViewModel",
      "PUDeletePhotosActionController",
      "PUImageTileViewController",
      "PUNavigationController",
      "PUOneUpBarsController",
      "PUOneUpSettings",
      "PUOneUpViewController",
      "PUPhotoSelectionManager",
      "PUPhotosAlbumViewController",
      "PUPhotosGridViewController",
      "PUPhotosSharingViewController",
      "PUStackView",
      "PUTabbedLibraryViewController",
      "PUTileController",
      "PUTileViewController",
      "PUVideoTileViewController",
      "PUZoomableGridViewController"}},
    {"PhotosUICore", {"PXPhotoKitCollectionsDataSourceManager", "PXRoundedCornerOverlayView", "PXUIButton"}},
    {"CameraUI",
     {"CAMBottomBar", "CAMCaptureController", "CAMCaptureEngine", "CAMImageWell",
      "CAMViewfinderViewController", "CAMCameraApplication"}},
    {"CustomDraw", {"CustomDrawButton"}},
    {"MobileSlideShow", {"PLPhotosApplication", "PhotosApplication"}},
    {"SpringBoard", {"FBSystemApp", "SpringBoard"}},
    {"Preferences",
     {"PSListController", "PSListItemsController", "PSRootController", "PSSpecifier", "PSSwitchTableCell",
      "PSTableCell", "PSViewController"}},
    {"PreferencesApp", {"PSUIPrefsListController", "PreferencesAppController"}},
    {"Messenger",
     {"MNMontageAlbumCell", "MNMontageAlbumListViewController", "MNPhotosAlbumDataSource",
      "MessengerApplication"}},
    {"WhatsApp", {"WAAlbumPickerViewController", "WhatsAppApplication"}},
    {"imgur", {"IMGAlbumPickerViewController", "ImgurApplication"}},
    {"PlainApplication", {"PlainApplication", "PlainViewController"}},
};

const std::vector<CatalogueEntry>& entries() {
    static const auto& all = *new std::vector<CatalogueEntry>{
        {bundle::springBoard, "SpringBoard", {"SpringBoard"}, nullptr, true},
        {bundle::photos,
         "PhotosApplication",
         {"MobileSlideShow", "PhotosUI", "PhotosUICore"},
         photos::addVerbs},
        {bundle::camera, "CAMCameraApplication", {"CameraUI", "PhotosUI", "PhotosUICore"}, camera::addVerbs},
        {bundle::settings, "PreferencesAppController", {"Preferences", "PreferencesApp"}, settings::addVerbs},
        {bundle::messenger, "MessengerApplication", {"Messenger"}, messenger::addVerbs},
        {bundle::whatsApp, "WhatsAppApplication", {"WhatsApp"}, pickers::addVerbs},
        {bundle::imgur, "ImgurApplication", {"imgur"}, pickers::addVerbs},
        {bundle::plain,
         "PlainApplication",
         {"PlainApplication", "PhotosUI", "PhotosUICore"},
         plain::addVerbs},
        {bundle::jolly,
         "PlainApplication",
         {"PlainApplication", "PhotosUI", "PhotosUICore"},
         plain::addVerbs},
    };
    return all;
}

void start(const CatalogueEntry& entry) {
    if (entry.addVerbs) entry.addVerbs();
    [UIApplication startApplicationOfClass:objc_getClass(entry.applicationClass)];
}

void registerEntry(const CatalogueEntry& entry, std::vector<std::string> loaded) {
    registerApplication(entry.bundleIdentifier, {.start = [&entry] { start(entry); },
                                                 .frameworks = std::move(loaded),
                                                 .worksInRootFolder = entry.worksInRootFolder});
}

const CatalogueEntry& entryFor(std::string_view bundleIdentifier) {
    const auto entry = std::ranges::find(entries(), bundleIdentifier, &CatalogueEntry::bundleIdentifier);
    if (entry == entries().end())
        throw std::invalid_argument("no application " + std::string(bundleIdentifier) + " is known");
    return *entry;
}

// Known as soon as the simulator is in the process: whoever starts a host names it by its bundle identifier
// only.
[[maybe_unused]] const bool registered = [] {
    for (const auto& framework : frameworks)
        registerFramework(framework.framework, framework.classes);
    for (const CatalogueEntry& entry : entries())
        registerEntry(entry, entry.frameworks);
    return true;
}();

} // namespace

std::span<const CatalogueEntry> catalogue() { return entries(); }

void setHasFramework(std::string_view bundleIdentifier, std::string_view framework, bool has) {
    const CatalogueEntry& entry = entryFor(bundleIdentifier);
    std::vector<std::string> loaded = entry.frameworks;
    std::erase(loaded, framework);
    if (has) loaded.emplace_back(framework);
    registerEntry(entry, std::move(loaded));
}

void loadFramework(std::string_view framework) {
    std::vector<std::string> loaded =
        entryFor([[[NSBundle mainBundle] bundleIdentifier] UTF8String]).frameworks;
    loaded.emplace_back(framework);
    setLoadedFrameworks(std::move(loaded));
}

} // namespace simulator
