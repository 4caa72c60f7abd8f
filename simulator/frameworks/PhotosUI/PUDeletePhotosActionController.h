#pragma once

#import "Photos/Photos.h"
#import "UIKit/UIKit.h"

/// Deletes photos after asking the user, unless told to skip the question.
@interface PUDeletePhotosActionController : NSObject {
    NSArray* _assets;
    BOOL _shouldSkipDeleteConfirmation;
}
- (instancetype)initWithAssets:(NSArray*)assets;
@property (nonatomic) BOOL shouldSkipDeleteConfirmation;
/// The block may be nil; it runs on the main thread unless the user cancels, with NO when the library
/// refused.
- (void)performFromViewController:(UIViewController*)controller completion:(void (^)(BOOL success))completion;
@end
