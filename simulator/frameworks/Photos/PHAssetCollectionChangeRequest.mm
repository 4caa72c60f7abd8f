#import "Photos/Photos+Making.h"

using simulator::Change;
using simulator::identifiersOf;

@implementation PHAssetCollectionChangeRequest

+ (instancetype)creationRequestForAssetCollectionWithTitle:(NSString*)title {
    NSString* identifier = simulator::string([self currentChange].addAlbum(simulator::titleOf(title)));
    PHAssetCollectionChangeRequest* request = [self requestForIdentifier:identifier];
    request->_placeholder = [[PHObjectPlaceholder alloc] initWithLocalIdentifier:identifier];
    return request;
}

+ (instancetype)changeRequestForAssetCollection:(PHAssetCollection*)collection {
    const BOOL isEditable = [collection canPerformEditOperation:PHCollectionEditOperationAddContent];
    return [self requestForIdentifier:isEditable ? [collection localIdentifier] : nil];
}

+ (instancetype)changeRequestForAssetCollection:(PHAssetCollection*)collection assets:(PHFetchResult*)assets {
    // The assets serve to translate indexes in the caller's eyes; what is added or removed here is named.
    (void)assets;
    return [self changeRequestForAssetCollection:collection];
}

+ (void)deleteAssetCollections:(id<NSFastEnumeration>)collections {
    Change& change = [self currentChange];
    for (std::string& identifier : identifiersOf(collections))
        change.add(Change::DeleteCollection{std::move(identifier)});
}

- (void)dealloc {
    [_placeholder release];
    [super dealloc];
}

- (PHObjectPlaceholder*)placeholderForCreatedAssetCollection {
    [self change];
    return _placeholder;
}

- (void)addAssets:(id<NSFastEnumeration>)assets {
    [self change].add(Change::AddMembers{[self identifier], identifiersOf(assets)});
}

- (void)removeAssets:(id<NSFastEnumeration>)assets {
    [self change].add(Change::RemoveMembers{[self identifier], identifiersOf(assets)});
}

@end
