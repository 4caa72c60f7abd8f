#include "settings/loader.h"

#include "objc/autorelease_pool.h"
#include "platform/core_foundation.h"
#include "settings/album_visibility.h"
#include "settings/settings.h"
#include "state/paths.h"

#include <span>

namespace rollkeeper::settings {

namespace {

struct BooleanKey {
    const char* name;
    bool fallback;
    Setting<bool>* setting; // null: the key is looked up and has no effect
};

// The tables are in the order in which the file is read: some settings depend on earlier ones.

constexpr BooleanKey albumAndTabKeys[] = {
    {"enabled", true, &enabled},
    {"showDeleted", true, &showDeleted},
    {"showFavourites", true, &showFavourites},
    {"showPlaces", true, &showPlaces},
    {"showPeople", true, &showPeople},
    {"showVideos", true, &showVideos},
    {"showSelfies", true, &showSelfies},
    {"showPanoramas", true, &showPanoramas},
    {"showTimelapse", true, &showTimelapse},
    {"showSlowmo", true, &showSlowmo},
    {"showBursts", true, &showBursts},
    {"showScreenshots", true, &showScreenshots},
    {"showHidden", false, &showHidden},
    {"showPortrait", true, &showPortrait},
    {"showAnimated", true, &showAnimated},
    {"showLive", true, &showLive},
    {"showTabMoments", true, &showTabMoments},
    {"showTabMemories", true, &showTabMemories},
    {"showTabShared", true, &showTabShared},
    {"showTabAlbums", true, &showTabAlbums},
};

constexpr BooleanKey layoutKeys[] = {
    {"layoutShowTitle", true, &layoutShowTitle},
    {"layoutShowSubtitle", true, &layoutShowSubtitle},
};

// The keys without a setting belong to the preference file's format and do nothing.
constexpr BooleanKey behaviourKeys[] = {
    {"hideRollAlbum", false, nullptr},
    {"hideRollScreenshots", false, nullptr},
    {"hideLockedFromApps", true, &hideLockedFromApps},
    {"hideHiddenStock", false, nullptr},
    {"removeSearch", false, &removeSearch},
    {"skipDelete", false, &skipDelete},
    {"reorderStock", false, nullptr},
    {"showLiveBadge", false, &showLiveBadge},
    {"increaseZoom", false, &increaseZoom},
    {"enableCameraPicker", true, &enableCameraPicker},
    {"rememberDefault", false, &rememberDefault},
    {"showLockedinCamera", false, nullptr},
    {"returnToMainLocked", true, &returnToMainLocked},
    {"returnToMainDefault", false, &returnToMainDefault},
    {"pickerMovePhotos", true, &pickerMovePhotos},
    {"saveActivityEnabled", true, &saveActivityEnabled},
    {"saveActivityMove", false, &saveActivityMove},
    {"showLockedinSaveActivity", false, nullptr},
};

constexpr std::int32_t defaultFontSize = 14;
constexpr std::int32_t previewNothing = 3;

// Strings convert too ("YES", "0"); what does not convert, such as an array, counts as absent.
bool booleanValue(NSObject value, bool fallback) {
    return value.respondsTo<"boolValue">() ? cast<NSNumber>(value).boolValue() : fallback;
}

bool isInteger(NSObject value) { return value.respondsTo<"intValue">(); }

std::int32_t integerValue(NSDictionary preferences, NSString key, std::int32_t fallback) {
    const NSObject value = preferences.objectForKey(key);
    return isInteger(value) ? cast<NSNumber>(value).intValue() : fallback;
}

void loadBooleans(NSDictionary preferences, std::span<const BooleanKey> keys) {
    for (const BooleanKey& key : keys) {
        const NSObject value = preferences.valueForKey(NSString::stringWithUTF8String(key.name));
        const bool converted = booleanValue(value, key.fallback);
        if (key.setting) *key.setting = converted;
    }
}

void loadAlbumVisibility(NSDictionary preferences) {
    Owner<NSMutableDictionary> entries = make<NSMutableDictionary>();
    for (NSString key : each<NSString>(preferences.allKeys())) {
        if (!isAlbumKey(key)) continue;
        entries->setObject(NSNumber::numberWithBool(booleanValue(preferences.objectForKey(key), true)), key);
    }
    mergeAlbumVisibility(entries.get());
}

// With both lines of text switched off, a size of zero or less is kept: no text is drawn then.
void loadFontSize(NSDictionary preferences) {
    const std::int32_t size = integerValue(preferences, "layoutFontSize"_ns, defaultFontSize);
    const bool anyText = layoutShowTitle || layoutShowSubtitle;
    albumFontSize = size <= 0 && anyText ? defaultFontSize : size;
}

// An album that opens without asking is not covered either.
void loadLockOptions(NSDictionary preferences) {
    lockedAlbumPreview = integerValue(preferences, "lockedAlbumPreview"_ns, 0);
    passOption = integerValue(preferences, "passOption"_ns, ask::touchId);
    if (passOption == ask::never) lockedAlbumPreview = previewNothing;
}

void reloadOnNotification(__CFNotificationCenter*, void*, id, const void*, id) { load(); }

} // namespace

void load() {
    const AutoreleasePool pool;
    const NSDictionary preferences = NSMutableDictionary::dictionaryWithContentsOfFile(path::preferences());
    loadBooleans(preferences, albumAndTabKeys);
    fixedLayoutFlag = true;
    loadAlbumVisibility(preferences);
    loadBooleans(preferences, layoutKeys);
    loadFontSize(preferences);
    loadLockOptions(preferences);
    loadBooleans(preferences, behaviourKeys);
}

void observeReloads() {
    const NSString notification = "com.nrv.rollkeeperprefs/reloadPrefs"_ns;
    CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), nullptr,
                                    &reloadOnNotification, notification.pointer, nullptr, 0);
}

} // namespace rollkeeper::settings
