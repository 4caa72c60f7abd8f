#import "PhotosUI/ScreenHelpers.h"

#import "Dispatch/Dispatch.h"

namespace simulator {

UIBarButtonItem* barButton(NSString* title, id target, SEL action) {
    return [[[UIBarButtonItem alloc] initWithTitle:title
                                             style:UIBarButtonItemStylePlain
                                            target:target
                                            action:action] autorelease];
}

UIBarButtonItem* symbolButton(const char* outline, NSString* title, id target, SEL action) {
    UIBarButtonItem* button = barButton(title, target, action);
    [button setImage:[UIImage imageWithOutline:outline]];
    return button;
}

UIImage* pictureOf(PHAsset* asset, CGSize size, PHImageContentMode mode) {
    if (asset == nil) return nil;
    PHImageRequestOptions* options = [[[PHImageRequestOptions alloc] init] autorelease];
    [options setSynchronous:YES];
    __block UIImage* picture = nil;
    [[PHImageManager defaultManager] requestImageForAsset:asset
                                               targetSize:size
                                              contentMode:mode
                                                  options:options
                                            resultHandler:^(UIImage* image, NSDictionary*) {
                                                picture = [image retain];
                                            }];
    return [picture autorelease];
}

void confirm(UIViewController* presenter, UIView* source, NSString* title, NSString* message,
             NSString* action, void (^perform)(void)) {
    UIAlertController* sheet = [UIAlertController alertControllerWithTitle:title
                                                                   message:message
                                                            preferredStyle:UIAlertControllerStyleActionSheet];
    [sheet addAction:[UIAlertAction actionWithTitle:action
                                              style:UIAlertActionStyleDestructive
                                            handler:^(UIAlertAction*) {
                                                perform();
                                            }]];
    [sheet addAction:[UIAlertAction actionWithTitle:@"Cancel" style:UIAlertActionStyleCancel handler:nil]];
    [[sheet popoverPresentationController] setSourceView:source];
    [[sheet popoverPresentationController] setSourceRect:[source bounds]];
    [presenter presentViewController:sheet animated:YES completion:nil];
}

void changeLibrary(void (^changes)(void), void (^done)(BOOL success)) {
    [[PHPhotoLibrary sharedPhotoLibrary] performChanges:changes
                                      completionHandler:^(BOOL success, NSError*) {
                                          if (done == nil) return;
                                          dispatch_async(dispatch_get_main_queue(), ^{
                                              done(success);
                                          });
                                      }];
}

NSArray* rootCollections() {
    NSMutableArray* collections = [NSMutableArray array];
    for (PHFetchResult* result in @[
             [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeSmartAlbum
                                                      subtype:PHAssetCollectionSubtypeAny
                                                      options:nil],
             [PHCollection fetchTopLevelUserCollectionsWithOptions:nil]
         ])
        for (PHCollection* collection in result)
            [collections addObject:collection];
    return [[PHCollectionList transientCollectionListWithCollections:collections title:nil] collections];
}

} // namespace simulator
