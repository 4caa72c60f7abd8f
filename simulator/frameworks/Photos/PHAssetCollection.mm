#import "Photos/Photos+Making.h"

using simulator::Collection;
using simulator::CollectionKind;
using simulator::PhotoLibrary;
using simulator::withLibrary;

namespace {

NSDate* dateOf(const std::optional<double>& seconds) {
    return seconds ? [NSDate dateWithTimeIntervalSinceReferenceDate:*seconds] : nil;
}

bool isAssetCollectionKind(NSInteger type) {
    return type >= PHAssetCollectionTypeAlbum && type <= PHAssetCollectionTypeMoment;
}

} // namespace

@implementation PHAssetCollection

+ (PHFetchResult*)fetchAssetCollectionsWithType:(PHAssetCollectionType)type
                                        subtype:(PHAssetCollectionSubtype)subtype
                                        options:(PHFetchOptions*)options {
    if (!isAssetCollectionKind(type)) return [PHFetchResult resultWithCollections:{} options:options];
    return [PHFetchResult resultWithCollections:withLibrary([&](PhotoLibrary& library) {
                              return library.collections(static_cast<CollectionKind>(type), subtype);
                          })
                                        options:options];
}

+ (PHFetchResult*)fetchAssetCollectionsWithLocalIdentifiers:(NSArray*)identifiers
                                                    options:(PHFetchOptions*)options {
    const simulator::Identifiers wanted = simulator::identifiersOf(identifiers);
    simulator::Collections found =
        withLibrary([&](PhotoLibrary& library) { return library.collectionsWithIdentifiers(wanted); });
    std::erase_if(found,
                  [](const Collection& collection) { return collection.kind == CollectionKind::folder; });
    return [PHFetchResult resultWithCollections:found options:options];
}

+ (PHFetchResult*)fetchAssetCollectionsContainingAsset:(PHAsset*)asset
                                              withType:(PHAssetCollectionType)type
                                               options:(PHFetchOptions*)options {
    const std::string identifier = simulator::textOf([asset localIdentifier]);
    return [PHFetchResult
        resultWithCollections:withLibrary([&](PhotoLibrary& library) {
            return library.collectionsContaining(identifier, static_cast<CollectionKind>(type));
        })
                      options:options];
}

+ (PHFetchResult*)fetchMomentsWithOptions:(PHFetchOptions*)options {
    return [self fetchAssetCollectionsWithType:PHAssetCollectionTypeMoment
                                       subtype:PHAssetCollectionSubtypeAny
                                       options:options];
}

+ (PHAssetCollection*)transientAssetCollectionWithAssets:(NSArray*)assets title:(NSString*)title {
    Collection record;
    record.identifier = simulator::newAlbumIdentifier();
    if (title) record.title = simulator::textOf(title);
    PHAssetCollection* collection = [[[self alloc] initWithCollection:record] autorelease];
    collection->_transientIdentifiers = [(assets ? [assets valueForKey:@"localIdentifier"] : @[]) copy];
    return collection;
}

+ (PHAssetCollection*)transientAssetCollectionWithAssetFetchResult:(PHFetchResult*)result
                                                             title:(NSString*)title {
    return [self transientAssetCollectionWithAssets:[result fetchedObjects] title:title];
}

- (void)dealloc {
    [_transientIdentifiers release];
    [super dealloc];
}

- (NSArray*)transientIdentifiers {
    return _transientIdentifiers;
}

- (NSString*)title {
    return [self localizedTitle];
}

- (PHAssetCollectionType)assetCollectionType {
    return static_cast<PHAssetCollectionType>(_record->kind);
}

- (PHAssetCollectionSubtype)assetCollectionSubtype {
    return static_cast<PHAssetCollectionSubtype>(_record->subtype);
}

- (NSUInteger)estimatedAssetCount {
    if (_transientIdentifiers) return [_transientIdentifiers count];
    if (_record->kind != CollectionKind::album) return NSNotFound;
    return withLibrary([&](PhotoLibrary& library) { return library.countOfAssetsIn(*_record); });
}

- (NSDate*)startDate {
    return dateOf(_record->started);
}

- (NSDate*)endDate {
    return dateOf(_record->ended);
}

- (BOOL)isTrashBin {
    return _record->isTrashBin() ? YES : NO;
}

- (BOOL)canPerformEditOperation:(PHCollectionEditOperation)operation {
    return _transientIdentifiers ? NO : [super canPerformEditOperation:operation];
}

@end
