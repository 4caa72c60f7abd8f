#import "Photos/Photos+Making.h"

using simulator::Collection;
using simulator::CollectionKind;
using simulator::PhotoLibrary;
using simulator::withLibrary;

@implementation PHCollectionList

+ (PHFetchResult*)fetchCollectionListsWithType:(PHCollectionListType)type
                                       subtype:(PHCollectionListSubtype)subtype
                                       options:(PHFetchOptions*)options {
    if (type != PHCollectionListTypeFolder) return [PHFetchResult resultWithCollections:{} options:options];
    return [PHFetchResult resultWithCollections:withLibrary([&](PhotoLibrary& library) {
                              return library.collections(CollectionKind::folder, subtype);
                          })
                                        options:options];
}

+ (PHFetchResult*)fetchCollectionListsWithLocalIdentifiers:(NSArray*)identifiers
                                                   options:(PHFetchOptions*)options {
    const simulator::Identifiers wanted = simulator::identifiersOf(identifiers);
    simulator::Collections found =
        withLibrary([&](PhotoLibrary& library) { return library.collectionsWithIdentifiers(wanted); });
    std::erase_if(found,
                  [](const Collection& collection) { return collection.kind != CollectionKind::folder; });
    return [PHFetchResult resultWithCollections:found options:options];
}

+ (PHCollectionList*)transientCollectionListWithCollections:(NSArray*)collections title:(NSString*)title {
    Collection record;
    record.identifier = simulator::newFolderIdentifier();
    record.kind = CollectionKind::folder;
    record.subtype = simulator::collectionSubtype::regularFolder;
    if (title) record.title = simulator::textOf(title);
    PHCollectionList* list = [[[self alloc] initWithCollection:record] autorelease];
    list->_transientCollections = collections ? [collections copy] : [[NSArray alloc] init];
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

- (PHCollectionListType)collectionListType {
    return PHCollectionListTypeFolder;
}

- (PHCollectionListSubtype)collectionListSubtype {
    return static_cast<PHCollectionListSubtype>(_record->subtype);
}

- (NSArray*)collections {
    if (_transientCollections) return _transientCollections;
    NSMutableArray* collections = [NSMutableArray array];
    for (const Collection& record :
         withLibrary([&](PhotoLibrary& library) { return library.content(_record->identifier); }))
        [collections addObject:[PHCollection collectionWithRecord:record]];
    return collections;
}

@end
