#include "hosts/applications/pickers.h"

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

} // namespace simulator
