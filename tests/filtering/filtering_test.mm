#import "filtering/filtering_test.h"

#import "CoreFoundation/CoreFoundation.h"

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

- (BOOL)respondsToSelector:(SEL)selector {
    return lacking.contains(sel_getName(selector)) ? NO : [super respondsToSelector:selector];
}

- (NSInteger)assetCollectionType {
    return type;
}

- (NSInteger)assetCollectionSubtype {
    return subtype;
}

- (NSString*)title {
    return title;
}

- (BOOL)isTrashBin {
    return isTrash;
}

// Lets a fetch of assets take it for an empty collection.
- (NSArray*)transientIdentifiers {
    return @[];
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

PHFetchResult* albums(PHAssetCollectionType type, NSInteger subtype) {
    return [PHAssetCollection fetchAssetCollectionsWithType:type
                                                    subtype:static_cast<PHAssetCollectionSubtype>(subtype)
                                                    options:nil];
}

NSArray* listed(NSArray* collections) {
    return [[PHCollectionList transientCollectionListWithCollections:collections title:nil] collections];
}

void FilteringTest::startComplete(const std::string& bundleIdentifier) {
    change([](Conditions& conditions) { conditions.release = Release::complete; });
    start(bundleIdentifier);
    // Observers are told in the order in which they registered: the library's has been told when ours is.
    CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), nullptr, notificationArrived,
                                    (CFStringRef)reloadName, nullptr, 0);
}

void FilteringTest::setPreferences(const nlohmann::json& preferences) {
    writePreferences(preferences);
    for (const auto& [key, value] : preferences.items())
        if (key.find("albumName") != key.npos)
            [m_known setObject:[NSNumber numberWithBool:value.get<bool>() ? YES : NO] forKey:string(key)];
    const int before = arrivedNotifications;
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(), (CFStringRef)reloadName,
                                         nullptr, nullptr, true);
    waitFor([&] { return arrivedNotifications > before; });
}

} // namespace simulator::test
