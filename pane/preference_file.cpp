#include "preference_file.h"

#include "bundle.h"
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

Owner<NSMutableDictionary> readOrEmpty() {
    const Owner<NSMutableDictionary> preferences = share(read());
    return preferences ? preferences : make<NSMutableDictionary>();
}

bool write(NSMutableDictionary preferences) {
    if (!preferences.writeToFile(path::preferences(), true)) return false;
    postReload();
    return true;
}

// The rows of a page as its property list has them; nil when it cannot be read.
NSArray rowsOf(NSString page) {
    const NSString file = fileInBundle(page).stringByAppendingString(".plist"_ns);
    return cast<NSArray>(NSMutableDictionary::dictionaryWithContentsOfFile(file).objectForKey("items"_ns));
}

bool setDefaults(NSMutableDictionary preferences, NSString page) {
    const NSArray rows = rowsOf(page);
    for (NSDictionary row : each<NSDictionary>(rows))
        if (const auto key = cast<NSString>(row.objectForKey("key"_ns)))
            preferences.setObject(row.objectForKey("default"_ns), key);
    return static_cast<bool>(rows);
}

bool setDefaultsOfAllPages(NSMutableDictionary preferences) {
    bool complete = setDefaults(preferences, firstPage());
    for (NSDictionary row : each<NSDictionary>(rowsOf(firstPage())))
        if (const auto page = cast<NSString>(row.objectForKey("page"_ns)))
            complete = setDefaults(preferences, page) && complete;
    return complete;
}

void showAlbums(NSMutableDictionary preferences) {
    for (NSString key : each<NSString>(preferences.allKeys()))
        if (key.contains("albumName"_ns)) preferences.setObject(NSNumber::numberWithBool(true), key);
}

} // namespace

NSNumber storedValue(PSSpecifier specifier) {
    const NSObject value = read().objectForKey(keyOf(specifier));
    const NSNumber number = numberFrom(value, specifier.cellType() == PSCellType::switchCell);
    return number ? number : cast<NSNumber>(specifier.property("default"_ns));
}

bool storedSwitch(NSString key, bool fallback) {
    const NSNumber number = numberFrom(read().objectForKey(key), true);
    return number ? number.boolValue() : fallback;
}

bool store(NSObject value, PSSpecifier specifier) {
    const Owner<NSMutableDictionary> preferences = readOrEmpty();
    preferences->setObject(value, keyOf(specifier));
    return write(preferences);
}

bool reset() {
    const Owner<NSMutableDictionary> preferences = readOrEmpty();
    showAlbums(preferences);
    return setDefaultsOfAllPages(preferences) && write(preferences);
}

} // namespace rollkeeper::pane
