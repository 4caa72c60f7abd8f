#import "PhotosUI/PUAssetHidingHelper.h"

@implementation PUAssetHidingHelper

@synthesize assets = _assets;

- (instancetype)init {
    return [super init];
}

- (void)dealloc {
    [_assets release];
    [super dealloc];
}

- (void)setAssets:(NSArray*)assets {
    if (assets != nil && ![assets isKindOfClass:[NSArray class]])
        [NSException
             raise:NSInvalidArgumentException
            format:@"-[PUAssetHidingHelper setAssets:]: an array is needed, not a %@", [assets class]];
    if (_assets == assets) return;
    [_assets release];
    _assets = [assets copy];
}

- (void)applyHiddenState:(BOOL)hidden completionHandler:(void (^)(BOOL success, NSError* error))handler {
    NSArray* assets = _assets;
    [[PHPhotoLibrary sharedPhotoLibrary]
           performChanges:^{
               for (PHAsset* asset in assets)
                   [[PHAssetChangeRequest changeRequestForAsset:asset] setHidden:hidden];
           }
        completionHandler:handler];
}

@end
