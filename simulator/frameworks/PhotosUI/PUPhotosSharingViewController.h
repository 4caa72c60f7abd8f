#pragma once

#import "Photos/Photos.h"
#import "UIKit/UIKit.h"

/// Shows the selected photos above the share sheet.
@interface PUPhotosSharingViewController : UIViewController {
    NSArray* _assets;
    UIScrollView* _photosView;
}
- (instancetype)initWithAssets:(NSArray*)assets;
@property (nonatomic, readonly) NSArray* assets;
/// Presents the share sheet with the pictures of the photos.
- (void)_nextButtonPressed:(id)sender;
@end
