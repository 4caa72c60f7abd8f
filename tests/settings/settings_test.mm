#import "settings/settings_test.h"

#import "CoreFoundation/CoreFoundation.h"
#import "PhotosUICore/PhotosUICore.h"
#import "UIKit/ViewTree.h"

#include "hosts/applications/photos/photos_app.h"

#include <objc/runtime.h>

namespace simulator::test {

namespace {

int arrivedNotifications = 0;

void notificationArrived(CFNotificationCenterRef, void*, CFStringRef, const void*, CFDictionaryRef) {
    ++arrivedNotifications;
}

template <typename Class> Class* allocated(const char* name) { return [objc_getClass(name) alloc]; }

bool filtered(PHFetchResult* collections, bool (^matches)(PHAssetCollection*)) {
    PHCollectionList* list = [PHCollectionList transientCollectionListWithCollectionsFetchResult:collections
                                                                                           title:nil];
    for (PHAssetCollection* each in [list collections])
        if (matches(each)) return true;
    return false;
}

bool listsSmartAlbum(PHAssetCollectionSubtype subtype) {
    PHFetchResult* all = [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeSmartAlbum
                                                                  subtype:PHAssetCollectionSubtypeAny
                                                                  options:nil];
    return filtered(all, ^bool(PHAssetCollection* each) {
        return [each assetCollectionSubtype] == subtype;
    });
}

PUAlbumListViewController* albumList() {
    return static_cast<PUAlbumListViewController*>([[[photos::library()
        navigationControllerForContentMode:PUContentModeAlbums] viewControllers] firstObject]);
}

bool showsTab(PUContentMode mode) {
    return [[photos::library() excludedContentModes] containsObject:[NSNumber numberWithInt:mode]] == NO;
}

bool deleteButtonsEverywhere() {
    auto* cell = [allocated<PUAlbumListCellContentView>("PUAlbumListCellContentView")
        initWithFrame:CGRectMake(0, 0, 100, 140)];
    return [[cell autorelease] showsDeleteButtonWhenEditing] != NO;
}

bool skipsDeleteQuestion() {
    auto* action =
        [allocated<PUDeletePhotosActionController>("PUDeletePhotosActionController") initWithAssets:@[]];
    return [[action autorelease] shouldSkipDeleteConfirmation] != NO;
}

bool showsBadgeOfPlainPhoto() {
    PHAsset* photo = [[PHAsset fetchAssetsWithMediaType:PHAssetMediaTypeImage options:nil] firstObject];
    auto* model = [allocated<PUAssetViewModel>("PUAssetViewModel") initWithAsset:photo];
    return [[model autorelease] wantsIrisBadgeVisible] != NO;
}

bool increasesZoom() {
    auto* limits = [[allocated<PUOneUpSettings>("PUOneUpSettings") init] autorelease];
    [limits setDefaultMaximumZoomFactor:3];
    return [limits defaultMaximumZoomFactor] == 400;
}

bool returnsToMainFrom(void (^open)()) {
    photos::openAlbumList();
    open();
    UINavigationController* navigation = [photos::library() selectedNavigationController];
    EXPECT_EQ([[navigation viewControllers] count], 2U);
    [photos::application() applicationDidEnterBackground:photos::application()];
    return [[navigation viewControllers] count] == 1;
}

const std::map<std::string, bool (*)()> observers = {
    {"enabled", deleteButtonsEverywhere},
    {"showDeleted", [] { return listsSmartAlbum(PHAssetCollectionSubtype(1000000201)); }},
    {"showFavourites", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumFavorites); }},
    {"showPlaces",
     [] {
         const bool listed = listsSmartAlbum(PHAssetCollectionSubtype(1000000203));
         EXPECT_EQ(listed, [albumList() showPlaces] != NO);
         return listed;
     }},
    {"showPeople", [] { return [albumList() showPeople] != NO; }},
    {"showVideos", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumVideos); }},
    {"showSelfies", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumSelfPortraits); }},
    {"showPanoramas", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumPanoramas); }},
    {"showTimelapse", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumTimelapses); }},
    {"showSlowmo", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumSlomoVideos); }},
    {"showBursts", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumBursts); }},
    {"showScreenshots", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumScreenshots); }},
    {"showHidden", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumAllHidden); }},
    {"showPortrait", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumDepthEffect); }},
    {"showAnimated", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumLongExposures); }},
    {"showLive", [] { return listsSmartAlbum(PHAssetCollectionSubtypeSmartAlbumLivePhotos); }},
    {"showTabMoments", [] { return showsTab(PUContentModePhotos); }},
    {"showTabMemories", [] { return showsTab(PUContentModeMemories); }},
    {"showTabShared", [] { return showsTab(PUContentModeShared); }},
    {"showTabAlbums", [] { return showsTab(PUContentModeAlbums); }},
    {"layoutShowTitle", [] { return [[albumList() titleForCollection:album(@"Holidays")] length] > 0; }},
    {"layoutShowSubtitle",
     [] { return [[albumList() subtitleForCollection:album(@"Holidays")] length] > 0; }},
    {"removeSearch", [] { return [albumList() disallowsSearch] != NO; }},
    {"skipDelete", skipsDeleteQuestion},
    {"showLiveBadge", showsBadgeOfPlainPhoto},
    {"increaseZoom", increasesZoom},
    // Only a locked album, opened, is left by the one, and any album by the other.
    {"returnToMainLocked",
     [] {
         return returnsToMainFrom(^{
             photos::tapAlbum("Work");
         });
     }},
    {"returnToMainDefault",
     [] {
         return returnsToMainFrom(^{
             photos::tapAlbum("Family");
         });
     }},
};

} // namespace

void SettingsTest::startPhotos(const nlohmann::json& preferences) {
    change([](Conditions& conditions) {
        conditions.release = Release::complete;
        conditions.coreFoundationVersion = coreFoundationVersion(Release::ios11_4);
    });
    lockAlbums({"Work"});
    writePreferences(preferences);
    start(host::photos);
    // Observers are told in the order in which they registered: the library's has been told when ours is.
    CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), nullptr, notificationArrived,
                                    (CFStringRef) @"com.nrv.rollkeeperprefs/reloadPrefs", nullptr, 0);
}

void SettingsTest::postReload() {
    const int before = arrivedNotifications;
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         (CFStringRef) @"com.nrv.rollkeeperprefs/reloadPrefs", nullptr,
                                         nullptr, true);
    waitFor([&] { return arrivedNotifications > before; });
}

void SettingsTest::reload(const nlohmann::json& preferences) {
    writePreferences(preferences);
    postReload();
}

bool SettingsTest::isOn(const std::string& key) {
    @autoreleasepool {
        return observers.at(key)();
    }
}

std::map<std::string, bool> SettingsTest::observe() {
    std::map<std::string, bool> all;
    for (const auto& [key, observer] : observers)
        if (!key.starts_with("returnToMain")) all[key] = isOn(key);
    return all;
}

bool SettingsTest::listsAlbum(const std::string& title) {
    @autoreleasepool {
        NSString* wanted = [NSString stringWithUTF8String:title.c_str()];
        PHFetchResult* all = [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                                      subtype:PHAssetCollectionSubtypeAny
                                                                      options:nil];
        return filtered(all, ^bool(PHAssetCollection* each) {
            return [[each localizedTitle] isEqualToString:wanted] != NO;
        });
    }
}

} // namespace simulator::test
