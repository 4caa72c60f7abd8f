// The roads of the tour, in the order in which they are walked.
#pragma once

#include "tour/stage.h"

namespace simulator::tour {

void loadIntoEveryHost(Stage& stage);
void lockAnAlbum(Stage& stage);
void workWithAlbumContents(Stage& stage);
void takePhotosIntoAnAlbum(Stage& stage);
void compareWhatApplicationsSee(Stage& stage);
void changeSettingsInThePane(Stage& stage);

inline constexpr Road roads[] = {
    {"The library loads into every application", loadIntoEveryHost},
    {"An album is locked, opened and emptied", lockAnAlbum},
    {"Photos move between albums and the Camera Roll", workWithAlbumContents},
    {"The Camera and the share sheet save into albums", takePhotosIntoAnAlbum},
    {"What each application sees of the library", compareWhatApplicationsSee},
    {"A switch in the settings pane", changeSettingsInThePane},
};

namespace bundle {
inline constexpr const char* springBoard = "com.apple.springboard";
inline constexpr const char* camera = "com.apple.camera";
inline constexpr const char* photos = "com.apple.mobileslideshow";
inline constexpr const char* settings = "com.apple.Preferences";
inline constexpr const char* messenger = "com.facebook.Messenger";
inline constexpr const char* whatsApp = "net.whatsapp.WhatsApp";
inline constexpr const char* imgur = "imgurmobile";
inline constexpr const char* plain = "com.example.plain";
} // namespace bundle

} // namespace simulator::tour
