#import "PhotosUI/PUPhotosGrid.h"

@implementation PUPhotoSelectionManager

- (instancetype)init {
    self = [super init];
    if (self) _selection = [[NSMutableOrderedSet alloc] init];
    return self;
}

- (void)dealloc {
    [_selection release];
    [super dealloc];
}

- (NSSet*)selectedAssets {
    return [_selection set];
}

- (NSOrderedSet*)orderedSelectedAssets {
    return _selection;
}

- (BOOL)isAssetSelected:(PHAsset*)asset {
    return [_selection containsObject:asset];
}

- (void)setSelected:(BOOL)selected forAsset:(PHAsset*)asset {
    if (asset == nil) return;
    if (selected)
        [_selection addObject:asset];
    else
        [_selection removeObject:asset];
}

- (void)deselectAllAssets {
    [_selection removeAllObjects];
}

@end
