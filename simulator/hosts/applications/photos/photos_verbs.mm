#include "hosts/applications/photos/photos_app.h"

#import "UIKit/ViewTree.h"

#include "hosts/applications/common/screen.h"
#include "hosts/host.h"

namespace simulator::photos {

namespace {

using nlohmann::json;

std::string title(const json& request) { return request.at("title").get<std::string>(); }

template <typename Controller> Controller* front() {
    UIViewController* controller = controllerOnScreen();
    if (![controller isKindOfClass:[Controller class]])
        throw std::runtime_error(text([[Controller class] description]) + " is not on the screen");
    return static_cast<Controller*>(controller);
}

const struct {
    const char* name;
    void (*action)(const json& request);
} actions[] = {
    {"openAlbum", [](const json& request) { openAlbum(title(request)); }},
    {"tapAlbum", [](const json& request) { tapAlbum(title(request)); }},
    {"editAlbums", [](const json& request) { setEditing(request.at("editing").get<bool>()); }},
    {"deleteAlbum", [](const json& request) { tapDeleteAlbum(title(request)); }},
    {"openMoments", [](const json&) { openMoments(); }},
    {"selectPhotos",
     [](const json& request) {
         selectPhotos(front<PUPhotosGridViewController>(),
                      request.at("places").get<std::vector<std::size_t>>());
     }},
    {"addSelection", [](const json&) { addSelectionToAlbum(); }},
    {"removeSelection",
     [](const json&) {
         auto* grid = front<PUPhotosGridViewController>();
         tapBarButton([grid showsTrash] ? "Recover" : "Delete");
     }},
    {"openPhoto",
     [](const json& request) {
         openPhoto(front<PUPhotosGridViewController>(), request.at("place").get<std::size_t>());
     }},
    {"shareSelection", [](const json&) { shareSelection(); }},
};

} // namespace

void addVerbs() {
    registerVerb("albums", [](const json&) { return describeAlbums(openAlbumList()); });
    for (const auto& each : actions)
        registerVerb(each.name, [action = each.action](const json& request) {
            action(request);
            return json::object();
        });
}

} // namespace simulator::photos
