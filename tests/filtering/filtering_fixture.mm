#import "filtering/filtering_fixture.h"

@implementation FakeCollection

@synthesize assetCollectionType = _assetCollectionType, assetCollectionSubtype = _assetCollectionSubtype,
            title = _title, trashBin = _trashBin;

+ (FakeCollection*)collectionOfType:(NSInteger)type subtype:(NSInteger)subtype title:(NSString*)title {
    FakeCollection* collection = [[[self alloc] init] autorelease];
    [collection setAssetCollectionType:type];
    [collection setAssetCollectionSubtype:subtype];
    [collection setTitle:title];
    return collection;
}

- (void)dealloc {
    [_title release];
    [super dealloc];
}

- (BOOL)respondsToSelector:(SEL)selector {
    return lacking.contains(sel_getName(selector)) ? NO : [super respondsToSelector:selector];
}

// Lets a fetch of assets take it for an empty collection.
- (NSArray*)transientIdentifiers {
    return @[];
}

@end

namespace simulator::test {

PHFetchResult* albums(PHAssetCollectionType type, NSInteger subtype) {
    return [PHAssetCollection fetchAssetCollectionsWithType:type
                                                    subtype:static_cast<PHAssetCollectionSubtype>(subtype)
                                                    options:nil];
}

NSArray* listed(NSArray* collections) {
    return [[PHCollectionList transientCollectionListWithCollections:collections title:nil] collections];
}

void FilteringTest::startComplete(const std::string& bundleIdentifier, std::function<void()> beforeLoading) {
    change([](Conditions& conditions) { conditions.release = Release::complete; });
    start(bundleIdentifier, std::move(beforeLoading));
}

} // namespace simulator::test
