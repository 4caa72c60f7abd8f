#include "tour/scenarios.h"

#include <algorithm>

namespace simulator::tour {

namespace {

using nlohmann::json;

bool lists(HostProcess& photos, const char* title) {
    const json albums = photos.call("albums");
    return std::ranges::any_of(albums, [&](const json& album) { return album.at("title") == title; });
}

} // namespace

void changeSettingsInThePane(Stage& stage) {
    HostProcess& photos = stage.application(bundle::photos);
    HostProcess& settings = stage.application(bundle::settings);
    stage.check("Photos lists the stock album \"Videos\"", [&] { return lists(photos, "Videos"); });
    stage.tell("in Settings > Rollkeeper > Stock Albums the switch of \"Videos\" is turned off");
    settings.call(json{{"do", "openEntry"}, {"label", "Rollkeeper"}});
    settings.call(json{{"do", "tapRow"}, {"label", "Stock Albums"}});
    settings.call(json{{"do", "setControl"}, {"label", "Videos"}, {"value", false}});
    stage.check("Photos, which has been running all the time, lists it no more",
                [&] { return !lists(photos, "Videos"); });
}

} // namespace simulator::tour
