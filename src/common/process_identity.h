// Which process this is, as far as the filtering tells processes apart.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper {

namespace bundle {
inline NSString camera() { return "com.apple.camera"_ns; }
inline NSString photos() { return "com.apple.mobileslideshow"_ns; }
inline NSString settings() { return "com.apple.Preferences"_ns; }
inline NSString springBoard() { return "com.apple.springboard"_ns; }
inline NSString messenger() { return "com.facebook.Messenger"_ns; }
inline NSString whatsApp() { return "net.whatsapp.WhatsApp"_ns; }
inline NSString imgur() { return "imgurmobile"_ns; }
inline NSString jolly() { return "com.apple.store.Jolly"_ns; }
} // namespace bundle

inline bool isProcess(NSString identifier) {
    return NSBundle::mainBundle().bundleIdentifier().isEqualToString(identifier);
}

} // namespace rollkeeper
