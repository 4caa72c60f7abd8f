#import "settings/settings_fixture.h"

#import "PhotosUICore/PhotosUICore.h"
#import "filtering/stock_smart_albums.h"

#include <objc/runtime.h>

#include <algorithm>

namespace simulator::test {

namespace {

template <typename Class> Class* allocated(const char* name) { return [objc_getClass(name) alloc]; }

NSArray* filtered(PHAssetCollectionType type) {
    PHFetchResult* all = [PHAssetCollection fetchAssetCollectionsWithType:type
                                                                  subtype:PHAssetCollectionSubtypeAny
                                                                  options:nil];
    return [[PHCollectionList transientCollectionListWithCollectionsFetchResult:all title:nil] collections];
}

bool listsSmartAlbum(NSInteger subtype) {
    for (PHAssetCollection* each in filtered(PHAssetCollectionTypeSmartAlbum))
        if ([each assetCollectionSubtype] == subtype) return true;
    return false;
}

PUAlbumListViewController* rootList() {
    return static_cast<PUAlbumListViewController*>([[[photos::library()
        navigationControllerForContentMode:PUContentModeAlbums] viewControllers] firstObject]);
}

bool showsTab(PUContentMode mode) {
    return [[photos::library() excludedContentModes] containsObject:[NSNumber numberWithInt:mode]] == NO;
}

PUAlbumListCellContentView* newCell() {
    return [[allocated<PUAlbumListCellContentView>("PUAlbumListCellContentView")
        initWithFrame:CGRectMake(0, 0, 100, 140)] autorelease];
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

bool returnsToMainFrom(const char* album) {
    photos::openAlbumList();
    photos::tapAlbum(album);
    UINavigationController* navigation = [photos::library() selectedNavigationController];
    EXPECT_EQ([[navigation viewControllers] count], 2U);
    [photos::application() applicationDidEnterBackground:photos::application()];
    return [[navigation viewControllers] count] == 1;
}

const std::map<std::string, bool (*)()> observers = {
    {"enabled", [] { return [newCell() showsDeleteButtonWhenEditing] != NO; }},
    {"showDeleted", [] { return listsSmartAlbum(trashBinSubtype); }},
    {"showHidden", [] { return listsSmartAlbum(hiddenPhotosSubtype); }},
    {"showPeople", [] { return [rootList() showPeople] != NO; }},
    {"showTabMoments", [] { return showsTab(PUContentModePhotos); }},
    {"showTabMemories", [] { return showsTab(PUContentModeMemories); }},
    {"showTabShared", [] { return showsTab(PUContentModeShared); }},
    {"showTabAlbums", [] { return showsTab(PUContentModeAlbums); }},
    {"layoutShowTitle", [] { return [[rootList() titleForCollection:album(@"Holidays")] length] > 0; }},
    {"layoutShowSubtitle", [] { return [[rootList() subtitleForCollection:album(@"Holidays")] length] > 0; }},
    {"removeSearch", [] { return [rootList() disallowsSearch] != NO; }},
    {"skipDelete", skipsDeleteQuestion},
    {"showLiveBadge", showsBadgeOfPlainPhoto},
    {"increaseZoom", increasesZoom},
    // Only a locked album, opened, is left by the one, and any album by the other.
    {"returnToMainLocked", [] { return returnsToMainFrom("Work"); }},
    {"returnToMainDefault", [] { return returnsToMainFrom("Family"); }},
};

std::string fontSizes() {
    PUAlbumListCellContentView* cell = newCell();
    [cell layoutSubviews];
    std::ostringstream sizes;
    sizes << [[[cell _titleTextField] font] pointSize] << " " << [[[cell _subtitleLabel] font] pointSize];
    return sizes.str();
}

std::string kindOf(UIView* overlay) {
    if (overlay == nil) return "uncovered";
    if ([[overlay subviews] count] == 0) return "picture";
    return [[[overlay subviews] firstObject] isKindOfClass:[UIVisualEffectView class]] ? "blur" : "glyph";
}

} // namespace

void SettingsTest::startPhotos(const nlohmann::json& preferences, Release release) {
    change([&](Conditions& conditions) {
        conditions.release = release;
        conditions.coreFoundationVersion = coreFoundationVersion(Release::ios11_4);
    });
    lockAlbums({"Work"});
    writePreferences(preferences);
    start(host::photos);
}

bool SettingsTest::isOn(const std::string& key) {
    @autoreleasepool {
        for (const StockSmartAlbum& each : stockSmartAlbums)
            if (text(each.key) == key) return listsSmartAlbum(each.subtype);
        return observers.at(key)();
    }
}

std::map<std::string, bool> SettingsTest::observe() {
    std::map<std::string, bool> all;
    for (const StockSmartAlbum& each : stockSmartAlbums)
        all[text(each.key)] = isOn(text(each.key));
    for (const auto& [key, observer] : observers)
        if (!key.starts_with("returnToMain")) all[key] = isOn(key);
    return all;
}

bool SettingsTest::listsAlbum(const std::string& title) {
    @autoreleasepool {
        for (PHAssetCollection* each in filtered(PHAssetCollectionTypeAlbum))
            if (text([each localizedTitle]) == title) return true;
        return false;
    }
}

std::string SettingsTest::describeLockedAlbum() {
    @autoreleasepool {
        photos::openAlbumList();
        std::string described = fontSizes() + " " + kindOf(overlay("Work"));
        const std::size_t before = unlockReasons().size();
        photos::tapAlbum("Work");
        settle();
        described += hasOpenedAlbum() ? " opens" : isAskedForPassword() ? " asks" : " stays closed";
        if (unlockReasons().size() > before) described += " after Touch ID";
        goBack();
        return described;
    }
}

} // namespace simulator::test
