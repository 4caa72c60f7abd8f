#import "Photos/PHChangeRequest+Making.h"

using simulator::Change;
using simulator::Identifiers;

@implementation PHAssetCollectionChangeRequest

- (instancetype)initWithCollectionIdentifier:(NSString*)identifier {
    self = [super initInsideChangeBlock];
    if (self) _collectionIdentifier = [identifier copy];
    return self;
}

+ (instancetype)creationRequestForAssetCollectionWithTitle:(NSString*)title {
    std::optional<std::string> text;
    if (title) text = simulator::textOf(title);
    NSString* identifier = simulator::stringOf([self currentChange].addAlbum(std::move(text)));
    PHAssetCollectionChangeRequest* request =
        [[[self alloc] initWithCollectionIdentifier:identifier] autorelease];
    request->_placeholder = [[PHObjectPlaceholder alloc] initWithLocalIdentifier:identifier];
    return request;
}

+ (instancetype)changeRequestForAssetCollection:(PHAssetCollection*)collection {
    [self currentChange];
    if (![collection canPerformEditOperation:PHCollectionEditOperationAddContent]) return nil;
    return [[[self alloc] initWithCollectionIdentifier:[collection localIdentifier]] autorelease];
}

+ (instancetype)changeRequestForAssetCollection:(PHAssetCollection*)collection assets:(PHFetchResult*)assets {
    // The assets serve to translate indexes in the caller's eyes; what is added or removed here is named.
    (void)assets;
    return [self changeRequestForAssetCollection:collection];
}

+ (void)deleteAssetCollections:(id<NSFastEnumeration>)collections {
    Change& change = [self currentChange];
    for (std::string& identifier : simulator::identifiersOfObjects(collections))
        change.add(Change::DeleteCollection{std::move(identifier)});
}

- (void)dealloc {
    [_collectionIdentifier release];
    [_placeholder release];
    [super dealloc];
}

- (PHObjectPlaceholder*)placeholderForCreatedAssetCollection {
    [self change];
    return _placeholder;
}

- (void)setTitle:(NSString*)title {
    Change::SetTitle request{simulator::textOf(_collectionIdentifier), std::nullopt};
    if (title) request.title = simulator::textOf(title);
    [self change].add(std::move(request));
}

- (void)addAssets:(id<NSFastEnumeration>)assets {
    Change& change = [self change];
    change.add(Change::AddMembers{simulator::textOf(_collectionIdentifier),
                                  simulator::identifiersOfObjects(assets), std::nullopt});
}

- (void)insertAssets:(id<NSFastEnumeration>)assets atIndexes:(NSIndexSet*)indexes {
    Change& change = [self change];
    NSUInteger index = [indexes firstIndex];
    for (std::string& identifier : simulator::identifiersOfObjects(assets)) {
        if (index == NSNotFound)
            @throw [NSException exceptionWithName:NSInvalidArgumentException
                                           reason:@"more assets than indexes"
                                         userInfo:nil];
        change.add(
            Change::AddMembers{simulator::textOf(_collectionIdentifier), {std::move(identifier)}, index});
        index = [indexes indexGreaterThanIndex:index];
    }
}

- (void)removeAssets:(id<NSFastEnumeration>)assets {
    Change& change = [self change];
    change.add(Change::RemoveMembers{simulator::textOf(_collectionIdentifier),
                                     simulator::identifiersOfObjects(assets)});
}

@end
