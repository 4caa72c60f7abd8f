#import "PhotosUI/PUOneUp.h"

namespace {
constexpr NSUInteger livePhoto = 1 << 3;
}

@implementation PUAssetReference

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

@implementation PUAssetViewModel

- (instancetype)initWithAsset:(PHAsset*)asset {
    self = [super init];
    if (self) _asset = [asset retain];
    return self;
}

- (void)dealloc {
    [_asset release];
    [super dealloc];
}

- (BOOL)wantsIrisBadgeVisible {
    return ([_asset mediaSubtypes] & livePhoto) != 0 ? YES : NO;
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
