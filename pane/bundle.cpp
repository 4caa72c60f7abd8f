#include "bundle.h"

namespace rollkeeper::pane {

namespace {
NSString folder() { return "/Library/PreferenceBundles/RollkeeperPreferences.bundle/"_ns; }
} // namespace

NSBundle bundle() { return NSBundle::bundleWithPath(folder()); }

NSString fileInBundle(NSString name) { return folder().stringByAppendingString(name); }

NSString firstPage() { return "Root"_ns; }

NSString text(NSString key) { return bundle().localizedString(key, NSString(), "Rollkeeper"_ns); }

} // namespace rollkeeper::pane
