#import "PhotosUI/PUPhotoActions.h"

#import "PhotosUI/ScreenHelpers.h"

@implementation PUAssetHidingHelper

@synthesize assets = _assets;

- (void)dealloc {
    [_assets release];
    [super dealloc];
}

- (void)setAssets:(NSArray*)assets {
    if (assets != nil && ![assets isKindOfClass:[NSArray class]])
        [NSException
             raise:NSInvalidArgumentException
            format:@"-[PUAssetHidingHelper setAssets:]: an array is needed, not a %@", [assets class]];
    NSArray* copied = [assets copy];
    [_assets release];
    _assets = copied;
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

@implementation PUDeletePhotosActionController

- (instancetype)initWithAssets:(NSArray*)assets {
    self = [super init];
    if (self) _assets = [assets copy];
    return self;
}

- (void)dealloc {
    [_assets release];
    [super dealloc];
}

- (BOOL)shouldSkipDeleteConfirmation {
    return NO;
}

- (void)performFromViewController:(UIViewController*)controller
                       completion:(void (^)(BOOL success))completion {
    NSArray* assets = _assets;
    void (^deletion)(void) = ^{
        simulator::changeLibrary(
            ^{
                [PHAssetChangeRequest deleteAssets:assets];
            },
            completion);
    };
    if ([self shouldSkipDeleteConfirmation]) {
        deletion();
        return;
    }
    const NSUInteger count = [assets count];
    NSString* title = count == 1 ? @"Delete Photo" : [NSString stringWithFormat:@"Delete %lu Photos", count];
    simulator::confirm(controller, [controller view], nil,
                       @"These photos will be deleted from all your albums.", title, deletion);
}

@end

@implementation PUPhotosSharingViewController

- (void)dealloc {
    [_photosView release];
    [super dealloc];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    _photosView = [[UIScrollView alloc] initWithFrame:[[self view] bounds]];
    [[self view] addSubview:_photosView];
}

- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    const CGSize size = [[self view] bounds].size;
    [_photosView setFrame:CGRectMake(0, 0, size.width, size.height / 2)];
}

@end
