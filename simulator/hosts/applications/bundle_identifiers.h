// The bundle identifiers of the applications that the simulator knows.
#pragma once

namespace simulator::bundle {

inline constexpr const char* springBoard = "com.apple.springboard";
inline constexpr const char* photos = "com.apple.mobileslideshow";
inline constexpr const char* camera = "com.apple.camera";
inline constexpr const char* settings = "com.apple.Preferences";
inline constexpr const char* messenger = "com.facebook.Messenger";
inline constexpr const char* whatsApp = "net.whatsapp.WhatsApp";
inline constexpr const char* imgur = "imgurmobile";
inline constexpr const char* plain = "com.example.plain"; // any application of a third party
inline constexpr const char* saver = "com.example.saver"; // one that saves pictures and reads none
inline constexpr const char* jolly = "com.apple.store.Jolly";

} // namespace simulator::bundle
