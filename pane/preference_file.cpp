#include "preference_file.h"

#include "platform/core_foundation.h"
#include "state/paths.h"

namespace rollkeeper::pane {

namespace {

NSMutableDictionary read() { return NSMutableDictionary::dictionaryWithContentsOfFile(path::preferences()); }

NSString keyOf(PSSpecifier specifier) { return cast<NSString>(specifier.property("key"_ns)); }

// Somebody may have edited the file: texts convert as the library converts them, anything else is no value.
NSNumber numberFrom(NSObject value, bool isSwitch) {
    if (const auto number = ifKindOf<NSNumber>(value)) return number;
    const auto text = cast<NSNumber>(ifKindOf<NSString>(value));
    if (!text) return NSNumber();
    return isSwitch ? NSNumber::numberWithBool(text.boolValue()) : NSNumber::numberWithInt(text.intValue());
}

void postReload() {
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         "com.nrv.rollkeeperprefs/reloadPrefs"_ns.pointer, nullptr, nullptr,
                                         true);
}

} // namespace

NSNumber storedValue(PSSpecifier specifier) {
    const NSObject value = read().objectForKey(keyOf(specifier));
    const NSNumber number = numberFrom(value, specifier.cellType() == PSCellType::switchCell);
    return number ? number : cast<NSNumber>(specifier.property("default"_ns));
}

bool store(NSObject value, PSSpecifier specifier) {
    Owner<NSMutableDictionary> preferences = share(read());
    if (!preferences) preferences = make<NSMutableDictionary>();
    preferences->setObject(value, keyOf(specifier));
    if (!preferences->writeToFile(path::preferences(), true)) return false;
    postReload();
    return true;
}

} // namespace rollkeeper::pane
