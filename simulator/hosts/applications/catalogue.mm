#include "hosts/applications/catalogue.h"

#import "UIKit/UIKit.h"

#include "UIKit/model/Outlines.h"
#include "device/releases.h"
#include "hosts/applications/bundle_identifiers.h"
#include "hosts/applications/camera/camera_app.h"
#include "hosts/applications/common/AlbumPickerViewController.h"
#include "hosts/applications/common/screen.h"
#include "hosts/applications/messenger/messenger_app.h"
#include "hosts/applications/photos/photos_app.h"
#include "hosts/applications/plain/plain_app.h"
#include "hosts/applications/settings/settings_app.h"
#include "hosts/host.h"

#include <objc/runtime.h>

#include <algorithm>
#include <stdexcept>

namespace simulator {

namespace {

// The classes that some processes have and others have not, by what their names begin with.
const struct {
    std::string_view name;
    std::vector<std::string> prefixes;
} frameworks[] = {
    {"PhotosUI", {"PU"}},
    {"PhotosUICore", {"PX"}},
    {"CameraUI", {"CAM"}},
    {"CustomDraw", {"CustomDraw"}},
    {"MobileSlideShow", {"PLPhotosApplication", "PhotosApplication"}},
    {"SpringBoard", {"FBSystemApp", "SpringBoard", "SB"}},
    {"Preferences", {"PS"}},
    {"PreferencesApp", {"PreferencesAppController"}},
    {"Messenger", {"MN"}},
    {"Plain", {"Plain"}},
};

struct Entry {
    std::string_view bundleIdentifier;
    std::vector<std::string> frameworks;            // beside those that every application has
    const char* applicationClass = "UIApplication"; // shows the first screen when no class is named for it
    const char* firstScreen = nullptr;              // the class of a controller
    const char* titleInBar = nullptr;               // in a navigation controller, when there is a title
    void (*addVerbs)() = nullptr;                   // what a user can do in it
    bool worksInRootFolder = false;
    HomeIcon icon = {};
    bool readsPhotos = true; // and says in its Info.plist why
};

// clang-format off
const std::vector<Entry>& entries() {
    static const auto& all = *new std::vector<Entry>{
        {.bundleIdentifier = bundle::springBoard, .frameworks = {"SpringBoard"},
         .applicationClass = "SpringBoard", .worksInRootFolder = true},
        {.bundleIdentifier = bundle::photos, .frameworks = {"MobileSlideShow", "PhotosUI", "PhotosUICore"},
         .applicationClass = "PhotosApplication", .addVerbs = photos::addVerbs,
         .icon = {"Photos", outline::photos, {1, 0.58, 0}}},
        {.bundleIdentifier = bundle::camera, .frameworks = {"CameraUI", "PhotosUI", "PhotosUICore"},
         .firstScreen = "CAMViewfinderViewController", .addVerbs = camera::addVerbs,
         .icon = {"Camera", outline::camera, {0.45, 0.45, 0.48}}},
        {.bundleIdentifier = bundle::settings, .frameworks = {"Preferences", "PreferencesApp"},
         .applicationClass = "PreferencesAppController", .addVerbs = settings::addVerbs,
         .icon = {"Settings", outline::gear, {0.6, 0.6, 0.63}}},
        {.bundleIdentifier = bundle::messenger, .frameworks = {"Messenger"},
         .firstScreen = "MNMontageAlbumListViewController", .titleInBar = "Albums", .addVerbs = messenger::addVerbs,
         .icon = {"Messenger", outline::bubble, {0, 0.52, 1}}},
        {.bundleIdentifier = bundle::whatsApp, .frameworks = {"WhatsApp"},
         .firstScreen = "WAAlbumPickerViewController", .titleInBar = "Photos", .addVerbs = [] { registerVerb("listPicker", describePickerOnScreen); },
         .icon = {"WhatsApp", outline::bubble, {0.15, 0.78, 0.35}}},
        {.bundleIdentifier = bundle::imgur, .frameworks = {"imgur"},
         .firstScreen = "IMGAlbumPickerViewController", .titleInBar = "Upload", .addVerbs = [] { registerVerb("listPicker", describePickerOnScreen); },
         .icon = {"imgur", outline::upload, {0.11, 0.73, 0.41}}},
        {.bundleIdentifier = bundle::plain, .frameworks = {"Plain"},
         .firstScreen = "PlainViewController", .titleInBar = "Picture", .addVerbs = plain::addVerbs,
         .icon = {"Picture", outline::page, {0.55, 0.35, 0.85}}},
        {.bundleIdentifier = bundle::saver, .frameworks = {"Plain"},
         .firstScreen = "PlainViewController", .titleInBar = "Picture", .addVerbs = plain::addVerbs, .readsPhotos = false},
        {.bundleIdentifier = bundle::jolly, .frameworks = {"Plain"},
         .firstScreen = "PlainViewController", .titleInBar = "Picture", .addVerbs = plain::addVerbs},
    };
    return all;
}
// clang-format on

void start(const Entry& entry) {
    if (entry.addVerbs != nullptr) entry.addVerbs();
    [UIApplication startApplicationOfClass:objc_getClass(entry.applicationClass)];
    if (entry.firstScreen == nullptr) return;
    UIViewController* screen = [[[objc_getClass(entry.firstScreen) alloc] init] autorelease];
    if (entry.titleInBar != nullptr) {
        [screen setTitle:string(entry.titleInBar)];
        screen = [[[UINavigationController alloc] initWithRootViewController:screen] autorelease];
    }
    showRootViewController(screen);
}

void registerEntry(const Entry& entry, std::vector<std::string> loaded) {
    Application application{.start = [&entry] { start(entry); },
                            .frameworks = std::move(loaded),
                            .worksInRootFolder = entry.worksInRootFolder};
    if (!entry.readsPhotos) application.usageDescriptions.clear();
    registerApplication(entry.bundleIdentifier, std::move(application));
}

const Entry& entryFor(std::string_view bundleIdentifier) {
    const auto entry = std::ranges::find(entries(), bundleIdentifier, &Entry::bundleIdentifier);
    if (entry == entries().end())
        throw std::invalid_argument("no application " + std::string(bundleIdentifier) + " is known");
    return *entry;
}

[[maybe_unused]] const bool registered = [] {
    for (const auto& framework : frameworks)
        registerFramework(framework.name, framework.prefixes);
    for (const Entry& entry : entries())
        registerEntry(entry, entry.frameworks);
    return true;
}();

} // namespace

std::vector<HomeIcon> homeIcons() {
    std::vector<HomeIcon> icons;
    for (const Entry& entry : entries()) {
        if (entry.icon.name.empty()) continue;
        icons.push_back(entry.icon);
        icons.back().bundleIdentifier = entry.bundleIdentifier;
    }
    return icons;
}

void setHasFramework(std::string_view bundleIdentifier, std::string_view framework, bool has) {
    const Entry& entry = entryFor(bundleIdentifier);
    std::vector<std::string> loaded = entry.frameworks;
    std::erase(loaded, framework);
    if (has) loaded.emplace_back(framework);
    registerEntry(entry, std::move(loaded));
}

} // namespace simulator
