#import "Photos/Photos+Making.h"

using simulator::Asset;
using simulator::AssetFilter;
using simulator::Assets;
using simulator::PhotoLibrary;
using simulator::withLibrary;

namespace {

constexpr std::size_t keyAssetCount = 3;

/// In the order of the identifiers, without those that are gone or left out.
Assets assetsNamed(NSArray* identifiers, const AssetFilter& filter) {
    return withLibrary([&](PhotoLibrary& library) {
        Assets assets;
        for (NSString* identifier in identifiers)
            if (const auto asset = library.asset(simulator::text(identifier));
                asset && !asset->trashed && (filter.includeHidden || !asset->hidden))
                assets.push_back(*asset);
        return assets;
    });
}

Assets assetsOf(PHAssetCollection* collection, PHFetchOptions* options) {
    if (collection == nil) return {};
    const AssetFilter filter = simulator::filterOf(options);
    if (NSArray* transient = [collection transientIdentifiers]) return assetsNamed(transient, filter);
    return withLibrary([&](PhotoLibrary& library) { return library.assetsIn([collection record], filter); });
}

PHFetchResult* fetch(const AssetFilter& filter, PHFetchOptions* options) {
    return simulator::resultOf(withLibrary([&](PhotoLibrary& library) { return library.assets(filter); }),
                               options);
}

} // namespace

@implementation PHAsset

@synthesize mediaType = _mediaType;
@synthesize mediaSubtypes = _mediaSubtypes;
@synthesize hidden = _hidden;
@synthesize favorite = _favorite;

+ (PHFetchResult*)fetchAssetsWithOptions:(PHFetchOptions*)options {
    return fetch(simulator::filterOf(options), options);
}

+ (PHFetchResult*)fetchAssetsWithLocalIdentifiers:(NSArray*)identifiers options:(PHFetchOptions*)options {
    return simulator::resultOf(assetsNamed(identifiers, simulator::filterOf(options)), options);
}

+ (PHFetchResult*)fetchAssetsWithMediaType:(PHAssetMediaType)mediaType options:(PHFetchOptions*)options {
    AssetFilter filter = simulator::filterOf(options);
    filter.mediaType = static_cast<simulator::MediaType>(mediaType);
    return fetch(filter, options);
}

+ (PHFetchResult*)fetchAssetsInAssetCollection:(PHAssetCollection*)collection
                                       options:(PHFetchOptions*)options {
    return simulator::resultOf(assetsOf(collection, options), options);
}

+ (PHFetchResult*)fetchKeyAssetsInAssetCollection:(PHAssetCollection*)collection
                                          options:(PHFetchOptions*)options {
    Assets assets = assetsOf(collection, options);
    if (assets.empty()) return nil;
    if ([collection assetCollectionType] != PHAssetCollectionTypeAlbum)
        std::reverse(assets.begin(), assets.end());
    if (assets.size() > keyAssetCount) assets.resize(keyAssetCount);
    return simulator::resultOf(assets, options);
}

- (instancetype)initWithAsset:(const Asset&)record {
    self = [super initWithLocalIdentifier:simulator::string(record.identifier)];
    if (self == nil) return nil;
    _mediaType = static_cast<PHAssetMediaType>(record.mediaType);
    _mediaSubtypes = static_cast<NSUInteger>(record.mediaSubtypes);
    _hidden = record.hidden ? YES : NO;
    _favorite = record.favorite ? YES : NO;
    return self;
}

@end
