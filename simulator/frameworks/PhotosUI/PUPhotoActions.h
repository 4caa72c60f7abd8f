// What is done to photos beside adding them to albums.
#pragma once

#import "Photos/Photos.h"
#import "UIKit/UIKit.h"

/// Hides photos from the library's own views, or shows them again; they stay in their albums.
@interface PUAssetHidingHelper : NSObject {
    NSArray* _assets;
}
/// The photos to work on (PHAsset); must be an array or nil, anything else raises.
@property (nonatomic, copy) NSArray* assets;
/// Changes the photos in the library, on the library's own queue, and calls the handler there; the handler
/// may be nil. A refused change leaves every photo as it was.
- (void)applyHiddenState:(BOOL)hidden completionHandler:(void (^)(BOOL success, NSError* error))handler;
@end

/// Deletes photos after asking the user, unless told to skip the question.
@interface PUDeletePhotosActionController : NSObject {
    NSArray* _assets;
}
- (instancetype)initWithAssets:(NSArray*)assets;
- (BOOL)shouldSkipDeleteConfirmation;
/// The block may be nil; it runs on the main thread unless the user cancels, with NO when the library
/// refused.
- (void)performFromViewController:(UIViewController*)controller completion:(void (^)(BOOL success))completion;
@end

/// Shows selected photos, to be shared.
@interface PUPhotosSharingViewController : UIViewController {
    UIScrollView* _photosView;
}
@end
