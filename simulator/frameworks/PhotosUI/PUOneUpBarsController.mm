#import "PhotosUI/BarButton.h"
#import "PhotosUI/PUOneUp.h"

#import "Dispatch/Dispatch.h"
#import "PhotosUI/PUAlbumListViewController.h"
#import "PhotosUI/PUDeletePhotosActionController.h"

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
    NSArray* items =
        [_browsingSession isInTrash] ? @[ barButton(@"Recover", self, @selector(_performRestoreAction)) ] : @[
            barButton(@"Add To", self, @selector(_performAddToAlbumAction)),
            barButton(@"Delete", self, @selector(_performTrashAction))
        ];
    [_viewController setToolbarItems:items animated:NO];
}

- (PHAsset*)_currentAsset {
    return [[[_browsingSession viewModel] currentAssetReference] asset];
}

- (void)_performRestoreAction {
    PHAsset* asset = [self _currentAsset];
    if (asset == nil) return;
    UIViewController* controller = _viewController;
    [[PHPhotoLibrary sharedPhotoLibrary]
        performChanges:^{
            [PHAssetChangeRequest undeleteAssets:@[ asset ]];
        }
        completionHandler:^(BOOL success, NSError*) {
            if (!success) return;
            dispatch_async(dispatch_get_main_queue(), ^{
                [[controller navigationController] popViewControllerAnimated:YES];
            });
        }];
}

- (void)_performTrashAction {
    PHAsset* asset = [self _currentAsset];
    if (asset == nil) return;
    UIViewController* controller = _viewController;
    PUDeletePhotosActionController* action =
        [[[PUDeletePhotosActionController alloc] initWithAssets:@[ asset ]] autorelease];
    [action performFromViewController:controller
                           completion:^(BOOL success) {
                               if (success) [[controller navigationController] popViewControllerAnimated:YES];
                           }];
}

- (void)_performAddToAlbumAction {
    PHAsset* asset = [self _currentAsset];
    if (asset == nil) return;
    [PUAlbumListViewController presentPickerForAssets:@[ asset ]
                                   fromViewController:_viewController
                                    completionHandler:^(BOOL){
                                    }];
}

@end
