#import "PhotosUI/PUOneUp.h"

@implementation PUOneUpViewController

@synthesize browsingSession = _browsingSession, barsController = _barsController;

- (instancetype)initWithBrowsingSession:(PUBrowsingSession*)session {
    self = [super init];
    if (!self) return nil;
    _browsingSession = [session retain];
    _barsController = [[PUOneUpBarsController alloc] initWithBrowsingSession:session viewController:self];
    return self;
}

- (void)dealloc {
    [_browsingSession release];
    [_barsController release];
    [_contentTileController release];
    [_irisBadge release];
    [super dealloc];
}

- (BOOL)pu_wantsTabBarVisible {
    return NO;
}

- (PHAsset*)_asset {
    return [[[_browsingSession viewModel] currentAssetReference] asset];
}

- (id)_currentContentTileController {
    PHAsset* asset = [self _asset];
    if (_contentTileController == nil && asset != nil) {
        Class tileClass = [asset mediaType] == PHAssetMediaTypeVideo ? [PUVideoTileViewController class]
                                                                     : [PUImageTileViewController class];
        _contentTileController = [[tileClass alloc] initWithAsset:asset];
    }
    return _contentTileController;
}

- (UIView*)_tileView {
    return [static_cast<PUTileViewController*>([self _currentContentTileController]) view];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    if (UIView* tile = [self _tileView]) [[self view] addSubview:tile];
    _irisBadge = [[UIImageView alloc] initWithFrame:CGRectMake(8, 72, 28, 28)];
    [_irisBadge setAccessibilityLabel:@"Live"];
    [[self view] addSubview:_irisBadge];
    [_barsController updateBars];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    PUAssetViewModel* model = [[[PUAssetViewModel alloc] initWithAsset:[self _asset]] autorelease];
    [_irisBadge setHidden:[model wantsIrisBadgeVisible] ? NO : YES];
    [self _loadPicture];
    [[self navigationController] setToolbarHidden:NO];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    [[self navigationController] setToolbarHidden:YES];
}

- (void)_loadPicture {
    auto tile = static_cast<UIImageView*>([self _tileView]);
    PHImageRequestOptions* options = [[[PHImageRequestOptions alloc] init] autorelease];
    [options setSynchronous:YES];
    [[PHImageManager defaultManager] requestImageForAsset:[self _asset]
                                               targetSize:[[self view] bounds].size
                                              contentMode:PHImageContentModeAspectFit
                                                  options:options
                                            resultHandler:^(UIImage* image, NSDictionary*) {
                                                [tile setImage:image];
                                            }];
}

- (void)viewWillLayoutSubviews {
    [super viewWillLayoutSubviews];
    [[self _tileView] setFrame:[[self view] bounds]];
}

@end
