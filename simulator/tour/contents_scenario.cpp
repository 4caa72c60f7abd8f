#include "tour/scenarios.h"
#include "tour/screen.h"

namespace simulator::tour {

namespace {

using nlohmann::json;

void select(HostProcess& photos, std::vector<std::size_t> places) {
    photos.call(json{{"do", "selectPhotos"}, {"places", std::move(places)}});
}

// Picks photos in the grid on the screen and adds them to an album, by the button of the sheet that asks.
void addSelectionTo(HostProcess& photos, const char* album, const char* answer) {
    photos.call("addSelection");
    photos.call(json{{"do", "tapAlbum"}, {"title", album}});
    PhotosScreen(photos).answer(answer);
}

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

void openAlbum(HostProcess& photos, const char* title) {
    photos.call(json{{"do", "openAlbum"}, {"title", title}});
}

void pickPhotos(Stage& stage, HostProcess& photos) {
    stage.tell("in Photos' moments the first and the second photo are picked into \"Pets\": Move");
    openMoments(stage, photos);
    select(photos, {0, 1});
    addSelectionTo(photos, "Pets", "Move");
    stage.check("they are in \"Pets\" and have left the Camera Roll",
                [&] { return stage.album("Pets") == "1 2" && stage.cameraRoll() == "3 4 5 6 7 8 9 10"; });
    stage.tell("the first of those that are left is picked into \"Pets\": Copy");
    openMoments(stage, photos);
    select(photos, {0});
    addSelectionTo(photos, "Pets", "Copy");
    stage.check("it is in \"Pets\" and still in the Camera Roll",
                [&] { return stage.album("Pets") == "1 2 3" && stage.cameraRoll() == "3 4 5 6 7 8 9 10"; });
}

void removeAndRestore(Stage& stage, HostProcess& photos) {
    PhotosScreen screen(photos);
    openMoments(stage, photos);
    stage.tell("photo 7 is moved out with its album \"Work\", its only one, and then removed from the album");
    openAlbum(photos, "Work");
    photos.call(json{{"do", "barButton"}, {"title", "Move"}});
    stage.check("the bar's \"Move\" asks where to",
                [&] { return screen.alertTitle() == "Move Album Photos"; });
    screen.answer("Move out of camera roll");
    stage.check("photo 7 has left the Camera Roll", [&] { return stage.cameraRoll() == "3 4 5 6 8 9 10"; });
    stage.check("the banner goes by itself", [&] { return screen.banners().empty(); });
    openAlbum(photos, "Work");
    select(photos, {0});
    photos.call("removeSelection");
    screen.answer("Remove from Album");
    stage.check("removed from its last album it is back in the Camera Roll",
                [&] { return stage.album("Work") == "nothing" && stage.cameraRoll() == "3 4 5 6 7 8 9 10"; });

    stage.tell("photo 8, hidden and in no album, lies in Recently Deleted and is recovered");
    const std::string identifier = stage.photos().assets()[5].identifier;
    stage.photos().setHidden(identifier, true);
    stage.photos().setTrashed(identifier, true);
    openAlbum(photos, "Recently Deleted");
    select(photos, {0});
    photos.call("removeSelection");
    screen.answer("Recover Photo");
    stage.check("it shows in the Camera Roll again",
                [&] { return stage.cameraRoll() == "3 4 5 6 7 8 9 10"; });
}

void returnEverything(Stage& stage, HostProcess& photos) {
    PhotosScreen screen(photos);
    stage.tell("on the album list the bar's button is \"Reset\": return all");
    photos.call("albums");
    photos.call(json{{"do", "barButton"}, {"title", "Reset"}});
    screen.answer("Return all");
    stage.check("every moved photo is in the Camera Roll",
                [&] { return stage.cameraRoll() == "1 2 3 4 5 6 7 8 9 10"; });
    stage.check("and still in its album", [&] { return stage.album("Pets") == "1 2 3"; });
    stage.check("the banner goes by itself", [&] { return screen.banners().empty(); });
}

void hideTabs(Stage& stage) {
    stage.tell("the settings leave one tab, Albums; Photos is started again");
    stage.writePreferences({{"showTabMoments", false}, {"showTabMemories", false}, {"showTabShared", false}});
    const json tree = stage.restart(bundle::photos).call("viewTree");
    const std::string text = tree.dump();
    stage.check("the tab bar has one item and is hidden", [&] {
        const auto bar = text.find("\"UITabBar\"");
        return bar != std::string::npos && text.find("\"hidden\":true") != std::string::npos;
    });
}

void leaveLockedAlbum(Stage& stage) {
    stage.tell("\"Holidays\" is locked and opened by Touch ID; then the home button is pressed");
    stage.device().writePropertyList("/var/mobile/Library/rollkeeper/lockedAlbums.plist",
                                     json::array({"Holidays"}));
    HostProcess& photos = stage.restart(bundle::photos);
    photos.call("albums");
    photos.call(json{{"do", "tapAlbum"}, {"title", "Holidays"}});
    const auto isOpen = [&] {
        return photos.call("viewTree").dump().find("PUPhotosAlbumViewController") != std::string::npos;
    };
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
