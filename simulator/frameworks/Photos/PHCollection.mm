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
    return simulator::resultOf(withLibrary([](PhotoLibrary& library) { return library.content(); }), options);
}

+ (PHFetchResult*)fetchCollectionsInCollectionList:(PHCollectionList*)list options:(PHFetchOptions*)options {
    const std::string folder = simulator::text([list localIdentifier]);
    return simulator::resultOf(withLibrary([&](PhotoLibrary& library) { return library.content(folder); }),
                               options);
}

- (instancetype)initWithCollection:(const Collection&)record {
    self = [super initWithLocalIdentifier:simulator::string(record.identifier)];
    if (self != nil) _record = new Collection(record);
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
    return _record->title ? simulator::string(*_record->title) : nil;
}

@end
