#import "PhotosUI/PUDeletePhotosActionController.h"

#import "Dispatch/Dispatch.h"

@implementation PUDeletePhotosActionController

@synthesize shouldSkipDeleteConfirmation = _shouldSkipDeleteConfirmation;

- (instancetype)initWithAssets:(NSArray*)assets {
    self = [super init];
    if (self) _assets = [assets copy];
    return self;
}

- (void)dealloc {
    [_assets release];
    [super dealloc];
}

- (void)performFromViewController:(UIViewController*)controller
                       completion:(void (^)(BOOL success))completion {
    if ([self shouldSkipDeleteConfirmation]) {
        [self _deleteWithCompletion:completion];
        return;
    }
    NSUInteger count = [_assets count];
    NSString* title = count == 1 ? @"Delete Photo" : [NSString stringWithFormat:@"Delete %lu Photos", count];
    UIAlertController* sheet =
        [UIAlertController alertControllerWithTitle:nil
                                            message:@"These photos will be deleted from all your albums."
                                     preferredStyle:UIAlertControllerStyleActionSheet];
    [sheet addAction:[UIAlertAction actionWithTitle:title
                                              style:UIAlertActionStyleDestructive
                                            handler:^(UIAlertAction*) {
                                                [self _deleteWithCompletion:completion];
                                            }]];
    [sheet addAction:[UIAlertAction actionWithTitle:@"Cancel" style:UIAlertActionStyleCancel handler:nil]];
    [[sheet popoverPresentationController] setSourceView:[controller view]];
    [[sheet popoverPresentationController] setSourceRect:[[controller view] bounds]];
    [controller presentViewController:sheet animated:YES completion:nil];
}

- (void)_deleteWithCompletion:(void (^)(BOOL success))completion {
    NSArray* assets = _assets;
    [[PHPhotoLibrary sharedPhotoLibrary]
        performChanges:^{
            [PHAssetChangeRequest deleteAssets:assets];
        }
        completionHandler:^(BOOL success, NSError*) {
            if (completion == nil) return;
            dispatch_async(dispatch_get_main_queue(), ^{
                completion(success);
            });
        }];
}

@end
