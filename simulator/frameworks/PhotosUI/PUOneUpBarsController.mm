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

- (UIBarButtonItem*)_itemTitled:(NSString*)title action:(SEL)action {
    return [[[UIBarButtonItem alloc] initWithTitle:title
                                             style:UIBarButtonItemStylePlain
                                            target:self
                                            action:action] autorelease];
}

- (void)updateBars {
    NSArray* items = [_browsingSession isInTrash]
                         ? @[ [self _itemTitled:@"Recover" action:@selector(_performRestoreAction)] ]
                         : @[
                               [self _itemTitled:@"Add To" action:@selector(_performAddToAlbumAction)],
                               [self _itemTitled:@"Delete" action:@selector(_performTrashAction)]
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
