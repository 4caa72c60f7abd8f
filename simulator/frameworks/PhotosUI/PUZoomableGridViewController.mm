#import "PhotosUI/PUPhotosGrid.h"

@implementation PUZoomableGridViewController

- (instancetype)init {
    self = [super init];
    if (self) [self setTitle:@"Moments"];
    return self;
}

- (PHFetchResult*)fetchAssets {
    return [PHAsset fetchAssetsWithOptions:nil];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
}

@end
