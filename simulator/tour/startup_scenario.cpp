#include "tour/scenarios.h"
#include "tour/screen.h"

namespace simulator::tour {

namespace {

using nlohmann::json;

void loadInto(Stage& stage, const char* bundleIdentifier) {
    std::size_t installed = 0;
    std::size_t absent = 0;  // a class or method that this release or application lacks
    bool areFromFile = true; // every function lies in the phone's file, where that is what runs
    const json answer = stage.application(bundleIdentifier).call("hooks");
    for (const json& hook : answer.at("hooks")) {
        (hook.at("installed").get<bool>() ? installed : absent) += 1;
        if (stage.runsPhoneFile()) areFromFile = areFromFile && hook.at("image") == stage.libraryFile();
    }
    stage.check(std::string(bundleIdentifier) + ": " + std::to_string(installed) + " methods hooked, " +
                    std::to_string(absent) + " not there on this release",
                [&] { return installed > 0 && areFromFile; });
}

} // namespace

void loadIntoEveryHost(Stage& stage) {
    stage.tell("a device on iOS 10.3 with ten photos; its Camera is to remember the album \"Family\"");
    stage.writePreferences({{"rememberDefault", true}});
    stage.device().writePropertyList(cameraAlbumFile, json::array({"Family"}));

    for (const char* each : {bundle::springBoard, bundle::photos, bundle::camera, bundle::settings,
                             bundle::messenger, bundle::whatsApp, bundle::imgur, bundle::plain})
        loadInto(stage, each);
    stage.check("SpringBoard has made the state folder",
                [&] { return stage.device().exists("/var/mobile/Library/rollkeeper"); });
    stage.check("the Camera starts with the album \"Family\"",
                [&] { return Screen(stage.application(bundle::camera)).shows("Family"); });

    stage.tell("the settings pane writes a new preference file and posts its notification");
    stage.changePreferences(stage.application(bundle::settings),
                            {{"enableCameraPicker", true}, {"layoutShowSubtitle", false}});
    stage.check("Photos shows its albums without subtitles", [&] {
        const json albums = stage.application(bundle::photos).call("albums");
        for (const json& album : albums)
            if (album.at("title") == "Holidays") return album.at("subtitle").get<std::string>().empty();
        return false;
    });

    stage.tell("the plain application asks SpringBoard to write [\"Pets\"] as the Camera's album");
    stage.application(bundle::plain)
        .call({{"do", "sendMessage"},
               {"centre", "com.nrv.rollkeeper"},
               {"name", "savearray"},
               {"unlock", true},
               {"userInfo", {{"id", bundle::plain}, {"array", {"Pets"}}, {"path", cameraAlbumFile}}}});
    stage.check("the file holds the new array", [&] { return stage.fileHolds(cameraAlbumFile, {"Pets"}); });
    stage.writePreferences({{"rememberDefault", true}});
    stage.check("the Camera, started again, reads it and shows \"Pets\"",
                [&] { return Screen(stage.restart(bundle::camera)).shows("Pets"); });
}

} // namespace simulator::tour
