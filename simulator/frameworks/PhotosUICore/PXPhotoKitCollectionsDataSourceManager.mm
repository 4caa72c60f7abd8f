#import "PhotosUICore/PhotosUICore.h"

@implementation PXPhotoKitCollectionsDataSourceManager

- (BOOL)canReorderCollection:(PHCollection*)collection {
    if ([collection isKindOfClass:[PHCollectionList class]]) return YES;
    if (![collection isKindOfClass:[PHAssetCollection class]]) return NO;
    return [(PHAssetCollection*)collection assetCollectionType] == PHAssetCollectionTypeAlbum ? YES : NO;
}

@end
