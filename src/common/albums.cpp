#include "common/albums.h"

namespace rollkeeper {

Owner<PHFetchOptions> optionsIncludingHidden() {
    Owner<PHFetchOptions> options = make<PHFetchOptions>();
    options->setIncludeHiddenAssets(true);
    return options;
}

PHAssetCollection albumWithTitle(NSString title) {
    if (!title) return PHAssetCollection();
    const Owner<PHFetchOptions> options = optionsIncludingHidden();
    options->setPredicate(NSPredicate::predicateWithFormat("title = %@"_ns, NSArray::arrayWithObject(title)));
    return cast<PHAssetCollection>(PHAssetCollection::fetchAssetCollections(
                                       PHAssetCollectionType::album, PHAssetCollectionSubtype::any, options)
                                       .firstObject());
}

PHFetchResult assetsOf(PHAssetCollection album) {
    if (!album) return PHFetchResult();
    return PHAsset::fetchAssetsInAssetCollection(album, optionsIncludingHidden());
}

NSUInteger countOfAlbumsHolding(PHAsset asset) {
    return PHAssetCollection::fetchAssetCollectionsContainingAsset(asset, PHAssetCollectionType::album)
        .count();
}

Owner<NSMutableArray> regularAlbumTitles(PHFetchOptions options) {
    Owner<NSMutableArray> titles = make<NSMutableArray>();
    const PHFetchResult albums = PHAssetCollection::fetchAssetCollections(
        PHAssetCollectionType::album, PHAssetCollectionSubtype::albumRegular, options);
    albums.enumerateObjects(
        block<void(PHCollection, NSUInteger, bool*)>([](NSMutableArray found, PHCollection album, NSUInteger,
                                                        bool*) { found.addObject(album.localizedTitle()); },
                                                     titles));
    return titles;
}

PHAsset newestPhoto(PHFetchOptions options) {
    options.setSortDescriptors(
        NSArray::arrayWithObject(NSSortDescriptor::sortDescriptorWithKey("creationDate"_ns, true)));
    return cast<PHAsset>(PHAsset::fetchAssetsWithMediaType(PHAssetMediaType::image, options).lastObject());
}

PHAsset newestPhoto() { return newestPhoto(make<PHFetchOptions>()); }

} // namespace rollkeeper
