#include "tour/scenarios.h"
#include "tour/screen.h"

namespace simulator::tour {

namespace {

using nlohmann::json;

constexpr int lockOverlay = 200;
constexpr int moveButton = 213;
constexpr int lockButton = 214;
constexpr const char* lockedAlbumsFile = "/var/mobile/Library/rollkeeper/lockedAlbums.plist";
constexpr const char* passwordFile = "/var/mobile/Library/rollkeeper/settings.tct";

void edit(HostProcess& photos, bool editing) {
    photos.call(json{{"do", "editAlbums"}, {"editing", editing}});
}
void tapAlbum(HostProcess& photos, const char* title) {
    photos.call(json{{"do", "tapAlbum"}, {"title", title}});
}

bool showsPhotos(HostProcess& photos) {
    return photos.call("viewTree").dump().find("PUPhotosAlbumViewController") != std::string::npos;
}

// The device's clock stands still, so that no banner goes before it has been looked at.
void letBannersGo(Stage& stage, HostProcess& photos) {
    stage.check("the banner goes by itself", [&] {
        photos.call(json{{"do", "advanceClock"}, {"seconds", 1.0}});
        return PhotosScreen(photos).banners().empty();
    });
}

void lockHolidays(Stage& stage, HostProcess& photos) {
    PhotosScreen screen(photos);
    photos.call("albums");
    edit(photos, true);
    stage.tell("in Edit, the lock button of \"Holidays\" is tapped");
    screen.tapInAlbumCell("Holidays", lockButton);
    stage.check("SpringBoard has written the list of locked albums", [&] {
        return stage.device().exists(lockedAlbumsFile) &&
               stage.device().readPropertyList(lockedAlbumsFile) == json::array({"Holidays"});
    });
    edit(photos, false);
    photos.call("albums");
    stage.check("the cell of \"Holidays\" is covered, that of \"Family\" is not", [&] {
        return screen.inAlbumCell("Holidays", lockOverlay) && !screen.inAlbumCell("Family", lockOverlay);
    });
}

void beRefused(Stage& stage, HostProcess& photos) {
    PhotosScreen screen(photos);
    stage.device().writeFile(passwordFile, "sesame");
    stage.device().changeConditions(
        [](Conditions& conditions) { conditions.biometricOutcome = BiometricOutcome::userCancel; });
    stage.tell("the album is touched, Touch ID is cancelled");
    tapAlbum(photos, "Holidays");
    stage.check("the password is asked for", [&] { return screen.alertTitle() == "Unlock album"; });
    screen.type("open");
    screen.answer("OK");
    stage.check("a wrong one is refused: \"Incorrect password\"",
                [&] { return screen.showsBanner("Incorrect password") && !showsPhotos(photos); });
    letBannersGo(stage, photos);
}

void openWithTouchId(Stage& stage, HostProcess& photos) {
    stage.device().changeConditions(
        [](Conditions& conditions) { conditions.biometricOutcome = BiometricOutcome::success; });
    stage.tell("the album is touched again, and the finger is the right one");
    tapAlbum(photos, "Holidays");
    stage.check("Photos shows what is in it", [&] { return showsPhotos(photos); });
    photos.call("albums");
}

void moveOutAndBack(Stage& stage, HostProcess& photos) {
    PhotosScreen screen(photos);
    edit(photos, true);
    stage.tell("the move button of \"Family\": move out of the Camera Roll");
    screen.tapInAlbumCell("Family", moveButton);
    screen.answer("Move out of camera roll");
    stage.check("its photos 3 4 5 6 have left the Camera Roll and are still in the album",
                [&] { return stage.cameraRoll() == "1 2 7 8 9 10" && stage.album("Family") == "3 4 5 6"; });
    stage.check("\"Finished moving\" is told", [&] { return screen.showsBanner("Finished moving"); });
    letBannersGo(stage, photos);
    stage.tell("and back again");
    screen.tapInAlbumCell("Family", moveButton);
    screen.answer("Copy to camera roll");
    stage.check("all ten photos are in the Camera Roll",
                [&] { return stage.cameraRoll() == "1 2 3 4 5 6 7 8 9 10"; });
    letBannersGo(stage, photos);
}

void deleteWithOrphans(Stage& stage, HostProcess& photos) {
    PhotosScreen screen(photos);
    stage.tell("\"Family\" is moved out once more and then deleted; photo 3 is in \"Holidays\" as well");
    screen.tapInAlbumCell("Family", moveButton);
    screen.answer("Move out of camera roll");
    stage.check("its photos have left the Camera Roll", [&] { return stage.cameraRoll() == "1 2 7 8 9 10"; });
    photos.call(json{{"do", "deleteAlbum"}, {"title", "Family"}});
    screen.answer("Delete Album");
    stage.check("the album is gone", [&] { return stage.album("Family") == "no such album"; });
    edit(photos, false);
    stage.check("with the end of editing its orphans 4 5 6 are back, and 3 stays in \"Holidays\" only",
                [&] { return stage.cameraRoll() == "1 2 4 5 6 7 8 9 10"; });
}

} // namespace

void lockAnAlbum(Stage& stage) {
    stage.device().changeConditions([](Conditions& conditions) { conditions.manualClock = true; });
    stage.application(bundle::springBoard);
    HostProcess& photos = stage.application(bundle::photos);
    lockHolidays(stage, photos);
    beRefused(stage, photos);
    openWithTouchId(stage, photos);
    moveOutAndBack(stage, photos);
    deleteWithOrphans(stage, photos);
}

} // namespace simulator::tour
