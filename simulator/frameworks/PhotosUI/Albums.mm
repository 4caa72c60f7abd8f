#import "PhotosUI/Albums.h"

#import "PhotosUI/PUPhotosGrid.h"
#import "PhotosUI/ScreenHelpers.h"

namespace simulator {

PHAssetCollection* albumOf(PHCollection* collection) {
    const bool isAlbum = [collection isKindOfClass:[PHAssetCollection class]];
    return isAlbum ? static_cast<PHAssetCollection*>(collection) : nil;
}

bool hasSubtype(PHCollection* collection, PHAssetCollectionSubtype subtype) {
    return [albumOf(collection) assetCollectionSubtype] == subtype;
}

bool isUserAlbum(PHCollection* collection) {
    return hasSubtype(collection, PHAssetCollectionSubtypeAlbumRegular);
}

bool isShown(PHCollection* collection) {
    PHAssetCollection* album = albumOf(collection);
    return [album assetCollectionType] != PHAssetCollectionTypeSmartAlbum ||
           hasSubtype(album, PHAssetCollectionSubtypeSmartAlbumUserLibrary) || countIn(album) > 0;
}

NSUInteger countIn(PHCollection* collection) {
    if (PHAssetCollection* album = albumOf(collection))
        return [[PHAsset fetchAssetsInAssetCollection:album options:nil] count];
    return [[static_cast<PHCollectionList*>(collection) collections] count];
}

UIImage* coverOf(PHCollection* collection, CGFloat side) {
    if (albumOf(collection) == nil) return nil;
    PHFetchResult* key = [PHAsset fetchKeyAssetsInAssetCollection:albumOf(collection) options:nil];
    return pictureOf([key firstObject], CGSizeMake(side, side));
}

UIViewController* contentsOf(PHAssetCollection* album) {
    PUPhotosAlbumViewController* contents = [[[PUPhotosAlbumViewController alloc] init] autorelease];
    [contents setAssetCollection:album
        fetchResultContainingAssetCollection:nil
                             filterPredicate:nil
                        existingFetchResults:nil];
    return contents;
}

} // namespace simulator
