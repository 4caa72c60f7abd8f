#include "tour/scenarios.h"
#include "tour/screen.h"

namespace simulator::tour {

namespace {

using nlohmann::json;

constexpr int albumImage = 77;

void openChooser(Stage& stage, Screen& camera) {
    camera.tap(albumImage);
    stage.check("the album button asks \"Choose Album\"",
                [&] { return camera.alertTitle() == "Choose Album"; });
}

void photosIntoNewAlbum(Stage& stage, HostProcess& host) {
    Screen camera(host);
    openChooser(stage, camera);
    camera.answer("- Create new album -");
    camera.type("Garden");
    camera.answer("OK");
    stage.check("the new album \"Garden\" is the Camera's, and its file says so",
                [&] { return camera.shows("Garden") && stage.fileHolds(cameraAlbumFile, {"Garden"}); });
    stage.tell("three photos are taken, each of which moves a moment later");
    for (const char* expected : {"11", "11 12", "11 12 13"}) {
        host.call("takePhoto");
        stage.check("\"Garden\" holds " + std::string(expected) + ", the Camera Roll does not", [&] {
            return stage.album("Garden") == expected && stage.cameraRoll() == "1 2 3 4 5 6 7 8 9 10";
        });
    }
    stage.tell("with the move switched off, two more");
    stage.changePreferences(host, {{"pickerMovePhotos", false}});
    for (const char* expected : {"11 12 13 14", "11 12 13 14 15"}) {
        host.call("takePhoto");
        stage.check("\"Garden\" holds " + std::string(expected),
                    [&] { return stage.album("Garden") == expected; });
    }
    stage.check("the last two are in the Camera Roll as well",
                [&] { return stage.cameraRoll() == "1 2 3 4 5 6 7 8 9 10 14 15"; });
}

void startAgain(Stage& stage, HostProcess& host) {
    const auto startsWith = [&](const char* album) {
        return Screen(stage.restart(bundle::camera)).shows(album);
    };
    Screen camera(host);
    openChooser(stage, camera);
    camera.answer("Family");
    stage.check("the Camera's album is \"Family\"", [&] { return camera.shows("Family"); });
    stage.check("and the file says so", [&] { return stage.fileHolds(cameraAlbumFile, {"Family"}); });
    stage.check("started again it has forgotten: \"Camera Roll\"", [&] { return startsWith("Camera Roll"); });
    stage.writePreferences({{"rememberDefault", true}});
    stage.check("with \"rememberDefault\" it starts with \"Family\"", [&] { return startsWith("Family"); });
}

void shareIntoAlbum(Stage& stage) {
    stage.writePreferences({{"saveActivityMove", true}});
    HostProcess& plain = stage.application(bundle::plain);
    stage.tell("a plain application saves a picture from its share sheet");
    plain.call("saveImage");
    stage.check("the album is asked for", [&] { return Screen(plain).alertTitle() == "Choose Album"; });
    Screen(plain).answer("Work");
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
