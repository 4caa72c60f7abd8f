#include "tour/scenarios.h"
#include "tour/screen.h"

namespace simulator::tour {

namespace {

using nlohmann::json;

constexpr int albumImage = 77;
constexpr const char* albumFile = "/var/mobile/Library/rollkeeper/album.tct";

bool shows(HostProcess& camera, const char* albumTitle) {
    return camera.call("viewTree").dump().find('"' + std::string(albumTitle) + '"') != std::string::npos;
}

void openChooser(Stage& stage, HostProcess& camera) {
    camera.call(json{{"do", "tap"}, {"tag", albumImage}});
    stage.check("the album button asks \"Choose Album\"",
                [&] { return PhotosScreen(camera).alertTitle() == "Choose Album"; });
}

void photosIntoNewAlbum(Stage& stage, HostProcess& camera) {
    PhotosScreen screen(camera);
    openChooser(stage, camera);
    screen.answer("- Create new album -");
    screen.type("Garden");
    screen.answer("OK");
    stage.check("the new album \"Garden\" is the Camera's, and its file says so", [&] {
        return shows(camera, "Garden") && stage.device().exists(albumFile) &&
               stage.device().readPropertyList(albumFile) == json::array({"Garden"});
    });
    stage.tell("three photos are taken, each of which moves a moment later");
    for (const char* expected : {"11", "11 12", "11 12 13"}) {
        camera.call("takePhoto");
        stage.check("\"Garden\" holds " + std::string(expected) + ", the Camera Roll does not", [&] {
            return stage.album("Garden") == expected && stage.cameraRoll() == "1 2 3 4 5 6 7 8 9 10";
        });
    }
    stage.tell("with the move switched off, two more");
    stage.writePreferences({{"pickerMovePhotos", false}});
    camera.call(json{{"do", "postNotification"}, {"name", "com.nrv.rollkeeperprefs/reloadPrefs"}});
    for (const char* expected : {"11 12 13 14", "11 12 13 14 15"}) {
        camera.call("takePhoto");
        stage.check("\"Garden\" holds " + std::string(expected),
                    [&] { return stage.album("Garden") == expected; });
    }
    stage.check("the last two are in the Camera Roll as well",
                [&] { return stage.cameraRoll() == "1 2 3 4 5 6 7 8 9 10 14 15"; });
}

void startAgain(Stage& stage, HostProcess& camera) {
    openChooser(stage, camera);
    PhotosScreen(camera).answer("Family");
    stage.check("the Camera's album is \"Family\"", [&] { return shows(camera, "Family"); });
    stage.check("and the file says so",
                [&] { return stage.device().readPropertyList(albumFile) == json::array({"Family"}); });
    stage.check("started again it has forgotten: \"Camera Roll\"",
                [&] { return shows(stage.restart(bundle::camera), "Camera Roll"); });
    stage.writePreferences({{"rememberDefault", true}});
    stage.check("with \"rememberDefault\" it starts with \"Family\"",
                [&] { return shows(stage.restart(bundle::camera), "Family"); });
}

void shareIntoAlbum(Stage& stage) {
    stage.writePreferences({{"saveActivityMove", true}});
    HostProcess& plain = stage.application(bundle::plain);
    PhotosScreen screen(plain);
    stage.tell("a plain application saves a picture from its share sheet");
    plain.call("saveImage");
    stage.check("the album is asked for", [&] { return screen.alertTitle() == "Choose Album"; });
    screen.answer("Work");
    stage.check("the picture, 16, is in \"Work\" and has left the Camera Roll", [&] {
        return stage.album("Work") == "7 16" && stage.cameraRoll() == "1 2 3 4 5 6 7 8 9 10 14 15";
    });
}

} // namespace

void takePhotosIntoAnAlbum(Stage& stage) {
    stage.application(bundle::springBoard);
    HostProcess& camera = stage.application(bundle::camera);
    photosIntoNewAlbum(stage, camera);
    startAgain(stage, camera);
    shareIntoAlbum(stage);
}

} // namespace simulator::tour
