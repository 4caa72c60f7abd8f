#include "tour/scenarios.h"

namespace simulator::tour {

void changeSettingsInThePane(Stage& stage) {
    HostProcess& photos = stage.application(bundle::photos);
    HostProcess& settings = stage.application(bundle::settings);
    const auto listsVideos = [&] {
        return photos.call("albums").dump().find("\"Videos\"") != std::string::npos;
    };
    stage.check("Photos lists the stock album \"Videos\"", listsVideos);
    stage.tell("in Settings > Rollkeeper > Stock Albums the switch of \"Videos\" is turned off");
    settings.call({{"do", "openEntry"}, {"label", "Rollkeeper"}});
    settings.call({{"do", "tapRow"}, {"label", "Stock Albums"}});
    settings.call({{"do", "setControl"}, {"label", "Videos"}, {"value", false}});
    stage.check("Photos, which has been running all the time, lists it no more",
                [&] { return !listsVideos(); });
}

} // namespace simulator::tour
