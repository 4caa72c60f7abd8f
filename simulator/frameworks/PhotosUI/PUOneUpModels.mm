#import "PhotosUI/PUOneUp.h"

@implementation PUAssetHolder

@synthesize asset = _asset;

- (instancetype)initWithAsset:(PHAsset*)asset {
    self = [super init];
    if (self) _asset = [asset retain];
    return self;
}

- (void)dealloc {
    [_asset release];
    [super dealloc];
}

@end

@implementation PUAssetReference
@end

@implementation PUAssetViewModel

- (BOOL)wantsIrisBadgeVisible {
    constexpr NSUInteger livePhoto = 1 << 3;
    return ([_asset mediaSubtypes] & livePhoto) != 0;
}

@end

@implementation PUBrowsingViewModel

@synthesize currentAssetReference = _currentAssetReference;

- (void)dealloc {
    [_currentAssetReference release];
    [super dealloc];
}

@end

@implementation PUBrowsingSession

@synthesize viewModel = _viewModel, inTrash = _inTrash;

- (instancetype)initWithAsset:(PHAsset*)asset inTrash:(BOOL)inTrash {
    self = [super init];
    if (!self) return nil;
    _viewModel = [[PUBrowsingViewModel alloc] init];
    [_viewModel setCurrentAssetReference:[[[PUAssetReference alloc] initWithAsset:asset] autorelease]];
    _inTrash = inTrash;
    return self;
}

- (void)dealloc {
    [_viewModel release];
    [super dealloc];
}

@end

@implementation PUOneUpSettings

@synthesize defaultMaximumZoomFactor = _defaultMaximumZoomFactor;

- (instancetype)init {
    self = [super init];
    [self setDefaultMaximumZoomFactor:2.5];
    return self;
}

@end

@implementation PUTileController
@end

@implementation PUTileViewController

- (void)dealloc {
    [_view release];
    [super dealloc];
}

- (UIImageView*)view {
    if (_view == nil) _view = [[UIImageView alloc] initWithFrame:CGRectZero];
    return _view;
}

@end

@implementation PUImageTileViewController
@end

@implementation PUVideoTileViewController
@end
