#import "PhotosUI/PURootCollections.h"

namespace {

void append(NSMutableArray* collections, PHFetchResult* result) {
    for (PHCollection* collection in result)
        [collections addObject:collection];
}

} // namespace

NSArray* PURootCollections() {
    NSMutableArray* collections = [NSMutableArray array];
    append(collections, [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeSmartAlbum
                                                                 subtype:PHAssetCollectionSubtypeAny
                                                                 options:nil]);
    append(collections, [PHCollection fetchTopLevelUserCollectionsWithOptions:nil]);
    return [[PHCollectionList transientCollectionListWithCollections:collections title:nil] collections];
}
