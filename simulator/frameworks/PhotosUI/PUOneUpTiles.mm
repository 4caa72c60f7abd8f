#import "PhotosUI/PUOneUp.h"

@implementation PUTileController

- (instancetype)initWithAsset:(PHAsset*)asset {
    self = [super init];
    if (self) _asset = [asset retain];
    return self;
}

- (void)dealloc {
    [_asset release];
    [super dealloc];
}

- (PHAsset*)asset {
    return _asset;
}

@end

@implementation PUTileViewController

- (void)dealloc {
    [_view release];
    [super dealloc];
}

- (UIView*)view {
    if (_view == nil) _view = [[UIImageView alloc] initWithFrame:CGRectZero];
    return _view;
}

@end

@implementation PUImageTileViewController

- (PHAsset*)asset {
    return _asset;
}

@end

@implementation PUVideoTileViewController

- (PHAsset*)asset {
    return _asset;
}

@end
