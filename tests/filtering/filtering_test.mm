#import "filtering/filtering_test.h"

#import "CoreFoundation/CoreFoundation.h"
#import "device/json_objects.h"
#import "hosts/applications/common/screen.h"

@implementation UntypedCollection

- (PHAssetCollectionSubtype)assetCollectionSubtype {
    return static_cast<PHAssetCollectionSubtype>(subtype);
}

// Lets a fetch of assets take it for an empty collection.
- (NSArray*)transientIdentifiers {
    return @[];
}

@end

@implementation UntitledCollection

- (PHAssetCollectionType)assetCollectionType {
    return static_cast<PHAssetCollectionType>(type);
}

@end

@implementation FakeCollection

+ (FakeCollection*)collectionOfType:(NSInteger)type subtype:(NSInteger)subtype title:(NSString*)title {
    FakeCollection* collection = [[[self alloc] init] autorelease];
    collection->type = type;
    collection->subtype = subtype;
    collection->title = [title copy];
    return collection;
}

- (void)dealloc {
    [title release];
    [super dealloc];
}

- (NSString*)title {
    return title;
}

- (BOOL)isTrashBin {
    return isTrash;
}

@end

namespace simulator::test {

namespace {

NSString* const reloadName = @"com.nrv.rollkeeperprefs/reloadPrefs";
int arrivedNotifications = 0;

void notificationArrived(CFNotificationCenterRef, void*, CFStringRef, const void*, CFDictionaryRef) {
    ++arrivedNotifications;
}

} // namespace

void FilteringTest::startComplete(const std::string& bundleIdentifier) {
    change([](Conditions& conditions) { conditions.release = Release::complete; });
    start(bundleIdentifier);
    // Observers are told in the order in which they registered: the library's has been told when ours is.
    CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), nullptr, notificationArrived,
                                    (CFStringRef)reloadName, nullptr, 0);
}

void FilteringTest::reload(const nlohmann::json& preferences) {
    writePreferences(preferences);
    for (const auto& [key, value] : preferences.items())
        if (key.find("albumName") != key.npos)
            [m_known setObject:[NSNumber numberWithBool:value.get<bool>() ? YES : NO] forKey:string(key)];
    const int before = arrivedNotifications;
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(), (CFStringRef)reloadName,
                                         nullptr, nullptr, true);
    waitFor([&] { return arrivedNotifications > before; });
}

PHFetchResult* FilteringTest::albums(PHAssetCollectionType type) {
    return [PHAssetCollection fetchAssetCollectionsWithType:type
                                                    subtype:PHAssetCollectionSubtypeAny
                                                    options:nil];
}

PHAssetCollection* FilteringTest::album(NSString* title) {
    for (PHAssetCollection* each in albums())
        if ([[each title] isEqualToString:title]) return each;
    return nil;
}

std::vector<std::string> FilteringTest::filtered(NSArray* listed) {
    PHCollectionList* list = [PHCollectionList transientCollectionListWithCollections:listed title:nil];
    return describe([list collections], listed);
}

std::vector<std::string> FilteringTest::describe(NSArray* answer, NSArray* listed) {
    PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
    [options setIncludeHiddenAssets:YES];
    std::vector<std::string> described;
    for (id each in answer) {
        const NSUInteger index = [listed indexOfObject:each];
        if (index != NSNotFound) {
            described.push_back(std::to_string(index));
            continue;
        }
        std::string copy = [each title] ? text([each title]) : "(untitled)";
        for (PHAsset* asset in [PHAsset fetchAssetsInAssetCollection:each options:options])
            copy += " " + text([asset localIdentifier]);
        described.push_back(copy);
    }
    return described;
}

} // namespace simulator::test
