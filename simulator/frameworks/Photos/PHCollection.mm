#import "Photos/Photos+Making.h"

using simulator::Collection;
using simulator::CollectionKind;
using simulator::PhotoLibrary;
using simulator::withLibrary;

@implementation PHCollection

+ (PHCollection*)collectionWithRecord:(const Collection&)record {
    Class made = record.kind == CollectionKind::folder ? [PHCollectionList class] : [PHAssetCollection class];
    return [[[made alloc] initWithCollection:record] autorelease];
}

+ (PHFetchResult*)fetchTopLevelUserCollectionsWithOptions:(PHFetchOptions*)options {
    return [PHFetchResult
        resultWithCollections:withLibrary([&](PhotoLibrary& library) { return library.content(); })
                      options:options];
}

+ (PHFetchResult*)fetchCollectionsInCollectionList:(PHCollectionList*)list options:(PHFetchOptions*)options {
    if (!list) return [PHFetchResult resultWithCollections:{} options:options];
    return [PHFetchResult resultWithCollections:withLibrary([&](PhotoLibrary& library) {
                              return library.content(simulator::textOf([list localIdentifier]));
                          })
                                        options:options];
}

- (instancetype)initWithCollection:(const Collection&)record {
    NSString* identifier = [[NSString alloc] initWithUTF8String:record.identifier.c_str()];
    self = [super initWithLocalIdentifier:identifier];
    if (self) _record = new Collection(record);
    [identifier release];
    return self;
}

- (void)dealloc {
    delete _record;
    [super dealloc];
}

- (const Collection&)record {
    return *_record;
}

- (NSString*)localizedTitle {
    return _record->title ? simulator::stringOf(*_record->title) : nil;
}

- (BOOL)canContainAssets {
    return _record->kind == CollectionKind::folder ? NO : YES;
}

- (BOOL)canContainCollections {
    return _record->kind == CollectionKind::folder ? YES : NO;
}

- (BOOL)canPerformEditOperation:(PHCollectionEditOperation)operation {
    (void)operation;
    return _record->isEditable() ? YES : NO;
}

@end
