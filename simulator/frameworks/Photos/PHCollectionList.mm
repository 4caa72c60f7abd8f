#import "Photos/Photos+Making.h"

using simulator::CollectionKind;
using simulator::PhotoLibrary;

@implementation PHCollectionList

+ (PHFetchResult*)fetchCollectionListsWithType:(PHCollectionListType)type
                                       subtype:(PHCollectionListSubtype)subtype
                                       options:(PHFetchOptions*)options {
    simulator::Collections found;
    if (type == PHCollectionListTypeFolder)
        found = simulator::withLibrary(
            [&](PhotoLibrary& library) { return library.collections(CollectionKind::folder, subtype); });
    return simulator::resultOf(found, options);
}

+ (PHCollectionList*)transientCollectionListWithCollections:(NSArray*)collections title:(NSString*)title {
    PHCollectionList* list =
        [[[self alloc] initWithCollection:{.identifier = simulator::newIdentifier("/L0/020"),
                                           .kind = CollectionKind::folder,
                                           .title = simulator::titleOf(title)}] autorelease];
    list->_transientCollections = collections != nil ? [collections copy] : [[NSArray alloc] init];
    return list;
}

+ (PHCollectionList*)transientCollectionListWithCollectionsFetchResult:(PHFetchResult*)result
                                                                 title:(NSString*)title {
    return [self transientCollectionListWithCollections:[result fetchedObjects] title:title];
}

- (void)dealloc {
    [_transientCollections release];
    [super dealloc];
}

- (NSArray*)collections {
    if (_transientCollections != nil) return _transientCollections;
    return [[PHCollection fetchCollectionsInCollectionList:self options:nil] fetchedObjects];
}

@end
