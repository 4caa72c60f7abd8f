#include "tour/scenarios.h"

namespace simulator::tour {

namespace {

using nlohmann::json;

constexpr const char* albumFile = "/var/mobile/Library/rollkeeper/album.tct";
constexpr const char* reloadNotification = "com.nrv.rollkeeperprefs/reloadPrefs";

struct Hooks {
    std::size_t installed = 0;
    std::size_t absent = 0;  // a class or method that this release or application lacks
    bool areFromFile = true; // every function lies in the phone's file, where that is what runs
};

Hooks hooksOf(Stage& stage, const char* bundleIdentifier) {
    Hooks hooks;
    const json answer = stage.application(bundleIdentifier).call("hooks");
    for (const json& hook : answer.at("hooks")) {
        (hook.at("installed").get<bool>() ? hooks.installed : hooks.absent) += 1;
        if (stage.runsPhoneFile())
            hooks.areFromFile = hooks.areFromFile && hook.at("image") == stage.libraryFile();
    }
    return hooks;
}

void loadInto(Stage& stage, const char* bundleIdentifier) {
    const Hooks hooks = hooksOf(stage, bundleIdentifier);
    stage.check(std::string(bundleIdentifier) + ": " + std::to_string(hooks.installed) + " methods hooked, " +
                    std::to_string(hooks.absent) + " not there on this release",
                [&] { return hooks.installed > 0 && hooks.areFromFile; });
}

} // namespace

void loadIntoEveryHost(Stage& stage) {
    stage.tell("a device on iOS 10.3 with ten photos; its Camera is to remember the album \"Family\"");
    stage.writePreferences({{"rememberDefault", true}});
    stage.device().writePropertyList(albumFile, json::array({"Family"}));

    for (const char* each : {bundle::springBoard, bundle::photos, bundle::camera, bundle::settings,
                             bundle::messenger, bundle::whatsApp, bundle::imgur, bundle::plain})
        loadInto(stage, each);
    stage.check("SpringBoard has made the state folder",
                [&] { return stage.device().exists("/var/mobile/Library/rollkeeper"); });
    stage.check("the Camera starts with the album \"Family\"", [&] {
        return stage.application(bundle::camera).call("viewTree").dump().find("\"Family\"") !=
               std::string::npos;
    });

    stage.tell("the settings pane writes a new preference file and posts its notification");
    stage.writePreferences({{"enableCameraPicker", true}, {"layoutShowSubtitle", false}});
    stage.application(bundle::settings).call(json{{"do", "postNotification"}, {"name", reloadNotification}});
    stage.check("Photos shows its albums without subtitles", [&] {
        const json albums = stage.application(bundle::photos).call("albums");
        for (const json& album : albums)
            if (album.at("title") == "Holidays") return album.at("subtitle").get<std::string>().empty();
        return false;
    });

    stage.tell("the plain application asks SpringBoard to write [\"Pets\"] as the Camera's album");
    stage.application(bundle::plain)
        .call(json{{"do", "sendMessage"},
                   {"centre", "com.nrv.rollkeeper"},
                   {"name", "savearray"},
                   {"unlock", true},
                   {"userInfo", {{"id", bundle::plain}, {"array", {"Pets"}}, {"path", albumFile}}}});
    stage.check("the file holds the new array",
                [&] { return stage.device().readPropertyList(albumFile) == json::array({"Pets"}); });
    stage.writePreferences({{"rememberDefault", true}});
    stage.check("the Camera, started again, reads it and shows \"Pets\"", [&] {
        return stage.restart(bundle::camera).call("viewTree").dump().find("\"Pets\"") != std::string::npos;
    });
}

} // namespace simulator::tour
