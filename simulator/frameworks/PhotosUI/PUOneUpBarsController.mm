#import "PhotosUI/PUOneUp.h"

#import "Dispatch/Dispatch.h"
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
    BOOL trash = [_browsingSession isInTrash];
    SEL action = trash ? @selector(_performRestoreAction) : @selector(_performTrashAction);
    UIBarButtonItem* item = [[[UIBarButtonItem alloc] initWithTitle:trash ? @"Recover" : @"Delete"
                                                              style:UIBarButtonItemStylePlain
                                                             target:self
                                                             action:action] autorelease];
    [_viewController setToolbarItems:@[ item ] animated:NO];
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

@end
