#include "hosts/applications/pickers.h"

#import "hosts/applications/settings/PreferencesAppController.h"

#include "hosts/applications/common/screen.h"
#include "hosts/host.h"

#include <stdexcept>

namespace simulator {

nlohmann::json pickers::list() {
    UIViewController* front = controllerOnScreen();
    if (![front isKindOfClass:[AlbumPickerViewController class]])
        throw std::runtime_error("no photo picker is on the screen");
    return describePicker(static_cast<AlbumPickerViewController*>(front));
}

void pickers::addVerbs() {
    registerVerb("listPicker", [](const nlohmann::json&) { return list(); });
}

nlohmann::json settings::listWallpapers() {
    auto application = static_cast<PreferencesAppController*>([UIApplication sharedApplication]);
    return describePicker([application openWallpaperPicker]);
}

void settings::addVerbs() {
    registerVerb("listPicker", [](const nlohmann::json&) { return listWallpapers(); });
}

} // namespace simulator
