#import "PhotosUI/PUOneUp.h"

#import "PhotosUI/ScreenHelpers.h"

@implementation PUOneUpBarsController

@synthesize browsingSession = _browsingSession;

- (instancetype)initWithBrowsingSession:(PUBrowsingSession*)session
                         viewController:(UIViewController*)controller {
    self = [super init];
    if (!self) return nil;
    _browsingSession = [session retain];
    _viewController = controller;
    return self;
}

- (void)dealloc {
    [_browsingSession release];
    [super dealloc];
}

- (void)updateBars {
    if (![_browsingSession isInTrash]) return;
    UIBarButtonItem* recover = simulator::barButton(@"Recover", self, @selector(_performRestoreAction));
    [_viewController setToolbarItems:@[ recover ] animated:NO];
}

- (void)_performRestoreAction {
    PHAsset* asset = [[[_browsingSession viewModel] currentAssetReference] asset];
    if (asset == nil) return;
    UIViewController* controller = _viewController;
    simulator::changeLibrary(
        ^{
            [PHAssetChangeRequest undeleteAssets:@[ asset ]];
        },
        ^(BOOL success) {
            if (success) [[controller navigationController] popViewControllerAnimated:YES];
        });
}

@end

@implementation PUOneUpViewController

@synthesize browsingSession = _browsingSession;

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
        const bool isVideo = [asset mediaType] == PHAssetMediaTypeVideo;
        Class tileClass = isVideo ? [PUVideoTileViewController class] : [PUImageTileViewController class];
        _contentTileController = [[tileClass alloc] initWithAsset:asset];
    }
    return _contentTileController;
}

- (void)viewDidLoad {
    [super viewDidLoad];
    [[self navigationItem] setLeftItemsSupplementBackButton:YES];
    [[self view] setBackgroundColor:[UIColor whiteColor]];
    UIView* tile = [[self _currentContentTileController] view];
    [tile setContentMode:UIViewContentModeScaleAspectFit];
    if (tile != nil) [[self view] addSubview:tile];
    [_barsController updateBars];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    const CGSize size = [[self view] bounds].size;
    [[_contentTileController view]
        setImage:simulator::pictureOf([self _asset], size, PHImageContentModeAspectFit)];
    [[self navigationController] setToolbarHidden:NO];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    [[self navigationController] setToolbarHidden:YES];
}

- (void)viewWillLayoutSubviews {
    [super viewWillLayoutSubviews];
    [[_contentTileController view] setFrame:[[self view] bounds]];
}

@end
