#import "PhotosUICore/PhotosUICore.h"

@implementation PXUIButton
@end

@implementation PXRoundedCornerOverlayView
@end

@implementation PXPhotoKitCollectionsDataSourceManager

- (BOOL)canReorderCollection:(PHCollection*)collection {
    const bool isFolder = [collection isKindOfClass:[PHCollectionList class]];
    return isFolder ||
           [static_cast<PHAssetCollection*>(collection) assetCollectionType] == PHAssetCollectionTypeAlbum;
}

@end
