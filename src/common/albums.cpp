#include "common/albums.h"

namespace rollkeeper {

Owner<PHFetchOptions> optionsIncludingHidden() {
    Owner<PHFetchOptions> options = make<PHFetchOptions>();
    options->setIncludeHiddenAssets(true);
    return options;
}

PHAssetCollection albumWithTitle(NSString title) {
    if (!title) return PHAssetCollection();
    const NSArray arguments = NSArray::arrayWithObject(title);
    if (!arguments) return PHAssetCollection();
    const NSPredicate hasTitle = NSPredicate::predicateWithFormat("title = %@"_ns, arguments);
    if (!hasTitle) return PHAssetCollection(); // without it any album would do
    const Owner<PHFetchOptions> options = optionsIncludingHidden();
    options->setPredicate(hasTitle);
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
    const NSArray oldestFirst =
        NSArray::arrayWithObject(NSSortDescriptor::sortDescriptorWithKey("creationDate"_ns, true));
    if (!oldestFirst) return PHAsset(); // without an order the last photo is any photo
    options.setSortDescriptors(oldestFirst);
    return cast<PHAsset>(PHAsset::fetchAssetsWithMediaType(PHAssetMediaType::image, options).lastObject());
}

PHAsset newestPhoto() { return newestPhoto(make<PHFetchOptions>()); }

} // namespace rollkeeper
