#include "tour/scenarios.h"
#include "tour/screen.h"

#include <algorithm>

namespace simulator::tour {

namespace {

constexpr int lockOverlay = 200;
constexpr int lockButton = 214;
constexpr const char* passwordFile = "/var/mobile/Library/rollkeeper/settings.tct";
constexpr const char* albumsScreen = "PUAlbumsGadgetViewController";
constexpr const char* albumContents = "PUPhotosAlbumViewController";

// The clock stands still, so that the banner does not go before it has been looked at.
void awaitBanner(Stage& stage, HostProcess& host, const char* what, const char* text) {
    Screen photos(host);
    stage.check(what, [&] { return std::ranges::count(photos.banners(), text) > 0; });
    stage.check("the banner goes by itself", [&] {
        host.call({{"do", "advanceClock"}, {"seconds", 1.0}});
        return photos.banners().empty();
    });
}

void lockByTheList(Stage& stage, HostProcess& host) {
    Screen photos(host);
    stage.check("Photos begins with the Albums screen, not with the album list",
                [&] { return photos.shows(albumsScreen) && photos.shows("See All"); });
    stage.tell("\"See All\" opens the album list; in Edit, the lock button of \"Holidays\" is tapped");
    host.call("albums");
    photos.pressButton("Edit");
    photos.tapInAlbumCell("Holidays", lockButton);
    stage.check("SpringBoard has written the list of locked albums",
                [&] { return stage.fileHolds(lockedAlbumsFile, {"Holidays"}); });
    photos.pressButton("Done");
    host.call("openAlbumsScreen");
    stage.check(
        "on the Albums screen the cover of \"Holidays\" wears a lock, that of \"Family\" does not", [&] {
            return photos.hasInCover("Holidays", lockOverlay) && !photos.hasInCover("Family", lockOverlay);
        });
}

void openByThePassword(Stage& stage, HostProcess& host) {
    Screen photos(host);
    stage.device().writeFile(passwordFile, "sesame");
    stage.device().changeConditions(
        [](Conditions& conditions) { conditions.biometricOutcome = BiometricOutcome::userCancel; });
    const auto isAsked = [&] { return photos.alertTitle() == "Unlock album"; };

    stage.tell("the album is touched, Touch ID is cancelled");
    photos.tapAlbum("Holidays");
    stage.check("the password is asked for", isAsked);
    photos.type("open");
    photos.answer("OK");
    awaitBanner(stage, host, "a wrong one is refused: \"Incorrect password\"", "Incorrect password");
    if (photos.shows(albumContents)) throw TourFailure("the album opened for a wrong password");

    stage.tell("its cover is pinched open, Touch ID is cancelled again");
    photos.pinchAlbum("Holidays");
    stage.check("the password is asked for", isAsked);
    photos.type("sesame");
    photos.answer("OK");
    stage.check("with the right one Photos shows what is in the album",
                [&] { return photos.shows(albumContents); });
    stage.tell("the home button is pressed");
    host.call("enterBackground");
    stage.check("Photos has gone back to the Albums screen", [&] { return !photos.shows(albumContents); });
}

void pressHard(Stage& stage, HostProcess& host) {
    Screen photos(host);
    host.call("openAlbumsScreen");
    stage.tell("the cover of \"Holidays\" is pressed hard, then that of \"Family\"");
    photos.hardPressAlbum("Holidays");
    if (photos.shows(albumContents)) throw TourFailure("a hard press opened the locked album");
    photos.hardPressAlbum("Family");
    stage.check("the locked one shows nothing, the other one opens",
                [&] { return photos.shows(albumContents); });
}

} // namespace

void lockOnTheAlbumsScreen(Stage& stage) {
    stage.device().changeConditions([](Conditions& conditions) {
        conditions.release = Release::ios12_4;
        conditions.manualClock = true;
    });
    stage.tell("a device on iOS 12.4");
    stage.application(bundle::springBoard);
    HostProcess& photos = stage.application(bundle::photos);
    lockByTheList(stage, photos);
    openByThePassword(stage, photos);
    pressHard(stage, photos);
}

} // namespace simulator::tour
