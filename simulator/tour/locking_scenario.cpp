#include "tour/scenarios.h"
#include "tour/screen.h"

#include <algorithm>

namespace simulator::tour {

namespace {

constexpr int lockOverlay = 200;
constexpr int moveButton = 213;
constexpr int lockButton = 214;
constexpr const char* albumContents = "PUPhotosAlbumViewController";

// Photos, whose clock stands still, so that no banner goes before it has been looked at.
struct Player {
    Stage& stage;
    HostProcess& host;
    Screen photos{host};

    void awaitBanner(const char* what, const char* text) {
        stage.check(what, [&] { return std::ranges::count(photos.banners(), text) > 0; });
        letBannersGo();
    }
    void letBannersGo() {
        stage.check("the banner goes by itself", [&] {
            host.call({{"do", "advanceClock"}, {"seconds", 1.0}});
            return photos.banners().empty();
        });
    }
    void answerTouchIdWith(BiometricOutcome outcome) {
        stage.device().changeConditions(
            [&](Conditions& conditions) { conditions.biometricOutcome = outcome; });
    }
    void moveFamily(const char* answer) {
        photos.tapInAlbumCell("Family", moveButton);
        photos.answer(answer);
    }
};

void lockHolidays(Player& player) {
    auto& [stage, host, photos] = player;
    host.call("albums");
    photos.pressButton("Edit");
    stage.tell("in Edit, the lock button of \"Holidays\" is tapped");
    photos.tapInAlbumCell("Holidays", lockButton);
    stage.check("SpringBoard has written the list of locked albums",
                [&] { return stage.fileHolds(lockedAlbumsFile, {"Holidays"}); });
    photos.pressButton("Done");
    host.call("albums");
    stage.check("the cell of \"Holidays\" is covered, that of \"Family\" is not", [&] {
        return photos.hasInAlbumCell("Holidays", lockOverlay) &&
               !photos.hasInAlbumCell("Family", lockOverlay);
    });
}

void beRefused(Player& player) {
    auto& [stage, host, photos] = player;
    stage.device().writeFile(passwordFile, "sesame");
    player.answerTouchIdWith(BiometricOutcome::userCancel);
    stage.tell("the album is touched, Touch ID is cancelled");
    photos.tapAlbum("Holidays");
    stage.check("the password is asked for", [&] { return photos.alertTitle() == "Unlock album"; });
    photos.type("open");
    photos.answer("OK");
    player.awaitBanner("a wrong one is refused: \"Incorrect password\"", "Incorrect password");
    if (photos.shows(albumContents)) throw TourFailure("the album opened for a wrong password");
}

void openWithTouchId(Player& player) {
    auto& [stage, host, photos] = player;
    player.answerTouchIdWith(BiometricOutcome::success);
    stage.tell("the album is touched again, and the finger is the right one");
    photos.tapAlbum("Holidays");
    stage.check("Photos shows what is in it", [&] { return photos.shows(albumContents); });
    host.call("albums");
}

void moveOutAndBack(Player& player) {
    auto& [stage, host, photos] = player;
    photos.pressButton("Edit");
    stage.tell("the move button of \"Family\": move out of the Camera Roll");
    player.moveFamily("Move out of camera roll");
    stage.check("its photos 3 4 5 6 have left the Camera Roll and are still in the album",
                [&] { return stage.cameraRoll() == "1 2 7 8 9 10" && stage.album("Family") == "3 4 5 6"; });
    player.awaitBanner("\"Finished moving\" is told", "Finished moving");
    stage.tell("and back again");
    player.moveFamily("Copy to camera roll");
    stage.check("all ten photos are in the Camera Roll",
                [&] { return stage.cameraRoll() == "1 2 3 4 5 6 7 8 9 10"; });
    player.letBannersGo();
}

void deleteWithOrphans(Player& player) {
    auto& [stage, host, photos] = player;
    stage.tell("\"Family\" is moved out once more and then deleted; photo 3 is in \"Holidays\" as well");
    player.moveFamily("Move out of camera roll");
    stage.check("its photos have left the Camera Roll", [&] { return stage.cameraRoll() == "1 2 7 8 9 10"; });
    host.call({{"do", "deleteAlbum"}, {"title", "Family"}});
    photos.answer("Delete Album");
    stage.check("the album is gone", [&] { return stage.album("Family") == "no such album"; });
    photos.pressButton("Done");
    stage.check("with the end of editing its orphans 4 5 6 are back, and 3 stays in \"Holidays\" only",
                [&] { return stage.cameraRoll() == "1 2 4 5 6 7 8 9 10"; });
}

} // namespace

void lockAnAlbum(Stage& stage) {
    stage.device().changeConditions([](Conditions& conditions) { conditions.manualClock = true; });
    stage.application(bundle::springBoard);
    Player player{stage, stage.application(bundle::photos)};
    lockHolidays(player);
    beRefused(player);
    openWithTouchId(player);
    moveOutAndBack(player);
    deleteWithOrphans(player);
}

} // namespace simulator::tour
