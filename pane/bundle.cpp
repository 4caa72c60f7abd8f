#include "bundle.h"

namespace rollkeeper::pane {

NSBundle bundle() {
    return NSBundle::bundleWithPath("/Library/PreferenceBundles/RollkeeperPreferences.bundle"_ns);
}

NSString text(NSString key) { return bundle().localizedString(key, NSString(), "Rollkeeper"_ns); }

} // namespace rollkeeper::pane
