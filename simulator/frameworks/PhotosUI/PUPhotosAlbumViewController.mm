#import "PhotosUI/PUPhotosGrid.h"

@implementation PUPhotosAlbumViewController

@synthesize assetCollection = _assetCollection;

- (void)dealloc {
    [_assetCollection release];
    [_filterPredicate release];
    [super dealloc];
}

- (void)setAssetCollection:(PHAssetCollection*)collection
    fetchResultContainingAssetCollection:(PHFetchResult*)containingResult
                         filterPredicate:(NSPredicate*)predicate
                    existingFetchResults:(id)existingResults {
    [_assetCollection autorelease];
    _assetCollection = [collection retain];
    [_filterPredicate autorelease];
    _filterPredicate = [predicate retain];
    [self setTitle:[collection localizedTitle]];
    [self reloadAssets];
}

- (PHFetchResult*)fetchAssets {
    if (_assetCollection == nil) return nil;
    PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
    [options setPredicate:_filterPredicate];
    return [PHAsset fetchAssetsInAssetCollection:_assetCollection options:options];
}

- (PHAssetCollection*)editableAlbum {
    const BOOL isEditable = [_assetCollection canPerformEditOperation:PHCollectionEditOperationRemoveContent];
    return isEditable ? _assetCollection : nil;
}

- (BOOL)isTrashBinViewController {
    return [_assetCollection isTrashBin];
}

- (BOOL)shouldShowSectionHeaders {
    return [_assetCollection assetCollectionSubtype] == PHAssetCollectionSubtypeSmartAlbumUserLibrary;
}

@end
