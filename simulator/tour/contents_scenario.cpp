#include "tour/scenarios.h"
#include "tour/screen.h"

namespace simulator::tour {

namespace {

using nlohmann::json;

// The screens of a pick take a moment to close.
void openMoments(Stage& stage, HostProcess& photos) {
    stage.check("Photos shows its moments", [&] {
        try {
            photos.call("openMoments");
            return true;
        } catch (const std::runtime_error&) {
            return false;
        }
    });
}

// Picks photos of the moments and adds them to "Pets", by the button of the sheet that asks.
void pickIntoPets(Stage& stage, HostProcess& host, const std::vector<std::size_t>& places,
                  const char* answer) {
    Screen photos(host);
    openMoments(stage, host);
    photos.selectPhotos(places);
    photos.pressButton("Add To");
    photos.tapAlbum("Pets");
    photos.answer(answer);
}

void pickPhotos(Stage& stage, HostProcess& photos) {
    stage.tell("in Photos' moments the first and the second photo are picked into \"Pets\": Move");
    pickIntoPets(stage, photos, {0, 1}, "Move");
    stage.check("they are in \"Pets\" and have left the Camera Roll",
                [&] { return stage.album("Pets") == "1 2" && stage.cameraRoll() == "3 4 5 6 7 8 9 10"; });
    stage.tell("the first of those that are left is picked into \"Pets\": Copy");
    pickIntoPets(stage, photos, {0}, "Copy");
    stage.check("it is in \"Pets\" and still in the Camera Roll",
                [&] { return stage.album("Pets") == "1 2 3" && stage.cameraRoll() == "3 4 5 6 7 8 9 10"; });
}

void removeAndRestore(Stage& stage, HostProcess& host) {
    Screen photos(host);
    openMoments(stage, host);
    stage.tell("photo 7 is moved out with its album \"Work\", its only one, and then removed from the album");
    photos.openAlbum("Work");
    photos.pressButton("Move");
    stage.check("the bar's \"Move\" asks where to",
                [&] { return photos.alertTitle() == "Move Album Photos"; });
    photos.answer("Move out of camera roll");
    stage.check("photo 7 has left the Camera Roll", [&] { return stage.cameraRoll() == "3 4 5 6 8 9 10"; });
    stage.check("the banner goes by itself", [&] { return photos.banners().empty(); });
    photos.openAlbum("Work");
    photos.selectPhotos({0});
    photos.pressButton("Delete");
    photos.answer("Remove from Album");
    stage.check("removed from its last album it is back in the Camera Roll",
                [&] { return stage.album("Work") == "nothing" && stage.cameraRoll() == "3 4 5 6 7 8 9 10"; });

    stage.tell("photo 8, hidden and in no album, lies in Recently Deleted and is recovered");
    const std::string identifier = stage.photos().assets()[5].identifier;
    stage.photos().setHidden(identifier, true);
    stage.photos().setTrashed(identifier, true);
    photos.openAlbum("Recently Deleted");
    photos.selectPhotos({0});
    photos.pressButton("Recover");
    photos.answer("Recover Photo");
    stage.check("it shows in the Camera Roll again",
                [&] { return stage.cameraRoll() == "3 4 5 6 7 8 9 10"; });
}

void returnEverything(Stage& stage, HostProcess& host) {
    Screen photos(host);
    stage.tell("on the album list the bar's button is \"Reset\": return all");
    host.call("albums");
    photos.pressButton("Reset");
    photos.answer("Return all");
    stage.check("every moved photo is in the Camera Roll",
                [&] { return stage.cameraRoll() == "1 2 3 4 5 6 7 8 9 10"; });
    stage.check("and still in its album", [&] { return stage.album("Pets") == "1 2 3"; });
    stage.check("the banner goes by itself", [&] { return photos.banners().empty(); });
}

void hideTabs(Stage& stage) {
    stage.tell("the settings leave one tab, Albums; Photos is started again");
    stage.writePreferences({{"showTabMoments", false}, {"showTabMemories", false}, {"showTabShared", false}});
    HostProcess& photos = stage.restart(bundle::photos);
    stage.check("the tab bar has one item and is hidden", [&] {
        const std::string tree = photos.call("viewTree").dump();
        return tree.find("\"UITabBar\"") != std::string::npos &&
               tree.find("\"hidden\":true") != std::string::npos;
    });
}

void leaveLockedAlbum(Stage& stage) {
    stage.tell("\"Holidays\" is locked and opened by Touch ID; then the home button is pressed");
    stage.lockAlbum("Holidays");
    HostProcess& photos = stage.restart(bundle::photos);
    const auto isOpen = [&] { return Screen(photos).shows("PUPhotosAlbumViewController"); };
    photos.call("albums");
    Screen(photos).tapAlbum("Holidays");
    stage.check("the album is open", isOpen);
    photos.call("enterBackground");
    stage.check("Photos has gone back to the album list", [&] { return !isOpen(); });
}

} // namespace

void workWithAlbumContents(Stage& stage) {
    stage.application(bundle::springBoard);
    HostProcess& photos = stage.application(bundle::photos);
    pickPhotos(stage, photos);
    removeAndRestore(stage, photos);
    returnEverything(stage, photos);
    hideTabs(stage);
    leaveLockedAlbum(stage);
}

} // namespace simulator::tour
