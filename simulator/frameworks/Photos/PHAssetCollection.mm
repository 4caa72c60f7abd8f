#import "Photos/Photos+Making.h"

using simulator::Collection;
using simulator::CollectionKind;
using simulator::Collections;
using simulator::PhotoLibrary;
using simulator::withLibrary;

@implementation PHAssetCollection

+ (PHFetchResult*)fetchAssetCollectionsWithType:(PHAssetCollectionType)type
                                        subtype:(PHAssetCollectionSubtype)subtype
                                        options:(PHFetchOptions*)options {
    Collections found;
    if (type >= PHAssetCollectionTypeAlbum && type <= PHAssetCollectionTypeMoment)
        found = withLibrary([&](PhotoLibrary& library) {
            return library.collections(static_cast<CollectionKind>(type), subtype);
        });
    return simulator::resultOf(found, options);
}

+ (PHFetchResult*)fetchAssetCollectionsWithLocalIdentifiers:(NSArray*)identifiers
                                                    options:(PHFetchOptions*)options {
    simulator::Identifiers wanted;
    for (NSString* identifier in identifiers)
        wanted.push_back(simulator::text(identifier));
    Collections found =
        withLibrary([&](PhotoLibrary& library) { return library.collectionsWithIdentifiers(wanted); });
    std::erase_if(found,
                  [](const Collection& collection) { return collection.kind == CollectionKind::folder; });
    return simulator::resultOf(found, options);
}

+ (PHFetchResult*)fetchAssetCollectionsContainingAsset:(PHAsset*)asset
                                              withType:(PHAssetCollectionType)type
                                               options:(PHFetchOptions*)options {
    const std::string identifier = simulator::text([asset localIdentifier]);
    Collections found;
    if (type == PHAssetCollectionTypeAlbum)
        found = withLibrary([&](PhotoLibrary& library) { return library.albumsContaining(identifier); });
    return simulator::resultOf(found, options);
}

+ (PHAssetCollection*)transientAssetCollectionWithAssets:(NSArray*)assets title:(NSString*)title {
    PHAssetCollection* collection = [[[self alloc]
        initWithCollection:{.identifier = simulator::newIdentifier(), .title = simulator::titleOf(title)}]
        autorelease];
    collection->_transientIdentifiers =
        assets != nil ? [[assets valueForKey:@"localIdentifier"] copy] : [[NSArray alloc] init];
    return collection;
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

- (BOOL)isTrashBin {
    return _record->subtype == simulator::collectionSubtype::trashBin ? YES : NO;
}

- (BOOL)canPerformEditOperation:(PHCollectionEditOperation)operation {
    (void)operation;
    return _transientIdentifiers == nil && _record->subtype == PHAssetCollectionSubtypeAlbumRegular;
}

@end
