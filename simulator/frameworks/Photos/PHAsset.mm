#import "Photos/Photos+Making.h"

using simulator::Asset;
using simulator::AssetFilter;
using simulator::Assets;
using simulator::PhotoLibrary;
using simulator::withLibrary;

namespace {

constexpr std::size_t keyAssetCount = 3;

Assets assetsOf(PHAssetCollection* collection, PHFetchOptions* options) {
    if (!collection) return {};
    const AssetFilter filter = simulator::filterOf(options);
    if (NSArray* transient = [collection transientIdentifiers])
        return withLibrary([&](PhotoLibrary& library) {
            return library.assetsWithIdentifiers(simulator::identifiersOf(transient), filter);
        });
    return withLibrary([&](PhotoLibrary& library) { return library.assetsIn([collection record], filter); });
}

} // namespace

@implementation PHAsset

+ (PHFetchResult*)fetchAssetsWithOptions:(PHFetchOptions*)options {
    return [PHFetchResult resultWithAssets:withLibrary([&](PhotoLibrary& library) {
                              return library.assets(simulator::filterOf(options));
                          })
                                   options:options];
}

+ (PHFetchResult*)fetchAssetsWithMediaType:(PHAssetMediaType)mediaType options:(PHFetchOptions*)options {
    AssetFilter filter = simulator::filterOf(options);
    filter.mediaType = static_cast<simulator::MediaType>(mediaType);
    return [PHFetchResult
        resultWithAssets:withLibrary([&](PhotoLibrary& library) { return library.assets(filter); })
                 options:options];
}

+ (PHFetchResult*)fetchAssetsWithLocalIdentifiers:(NSArray*)identifiers options:(PHFetchOptions*)options {
    const simulator::Identifiers wanted = simulator::identifiersOf(identifiers);
    return [PHFetchResult resultWithAssets:withLibrary([&](PhotoLibrary& library) {
                              return library.assetsWithIdentifiers(wanted, simulator::filterOf(options));
                          })
                                   options:options];
}

+ (PHFetchResult*)fetchAssetsInAssetCollection:(PHAssetCollection*)collection
                                       options:(PHFetchOptions*)options {
    return [PHFetchResult resultWithAssets:assetsOf(collection, options) options:options];
}

+ (PHFetchResult*)fetchKeyAssetsInAssetCollection:(PHAssetCollection*)collection
                                          options:(PHFetchOptions*)options {
    Assets assets = assetsOf(collection, options);
    if (assets.empty()) return nil;
    if ([collection assetCollectionType] != PHAssetCollectionTypeAlbum)
        std::reverse(assets.begin(), assets.end());
    if (assets.size() > keyAssetCount) assets.resize(keyAssetCount);
    return [PHFetchResult resultWithAssets:std::move(assets) options:options];
}

- (instancetype)initWithAsset:(const Asset&)record {
    NSString* identifier = [[NSString alloc] initWithUTF8String:record.identifier.c_str()];
    self = [super initWithLocalIdentifier:identifier];
    if (self) _record = new Asset(record);
    [identifier release];
    return self;
}

- (void)dealloc {
    delete _record;
    [super dealloc];
}

- (const Asset&)record {
    return *_record;
}

- (PHAssetMediaType)mediaType {
    return static_cast<PHAssetMediaType>(_record->mediaType);
}

- (NSUInteger)mediaSubtypes {
    return static_cast<NSUInteger>(_record->mediaSubtypes);
}

- (NSUInteger)pixelWidth {
    return static_cast<NSUInteger>(_record->width);
}

- (NSUInteger)pixelHeight {
    return static_cast<NSUInteger>(_record->height);
}

- (NSDate*)creationDate {
    return _record->created ? [NSDate dateWithTimeIntervalSinceReferenceDate:*_record->created] : nil;
}

- (NSTimeInterval)duration {
    return _record->duration;
}

- (BOOL)isHidden {
    return _record->hidden ? YES : NO;
}

- (BOOL)isFavorite {
    return _record->favorite ? YES : NO;
}

@end
