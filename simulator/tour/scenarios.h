// The scenarios of the tour, in the order in which they run.
#pragma once

#include "hosts/applications/bundle_identifiers.h"
#include "tour/stage.h"

namespace simulator::tour {

void loadIntoEveryHost(Stage& stage);
void lockAnAlbum(Stage& stage);
void lockOnTheAlbumsScreen(Stage& stage);
void workWithAlbumContents(Stage& stage);
void takePhotosIntoAnAlbum(Stage& stage);
void compareWhatApplicationsSee(Stage& stage);
void changeSettingsInThePane(Stage& stage);

inline constexpr Scenario scenarios[] = {
    {"The library loads into every application", loadIntoEveryHost},
    {"An album is locked, opened and emptied", lockAnAlbum},
    {"On iOS 12 a lock holds on the Albums screen, too", lockOnTheAlbumsScreen},
    {"Photos move between albums and the Camera Roll", workWithAlbumContents},
    {"The Camera and the share sheet save into albums", takePhotosIntoAnAlbum},
    {"What each application sees of the library", compareWhatApplicationsSee},
    {"A switch in the settings pane", changeSettingsInThePane},
};

} // namespace simulator::tour
