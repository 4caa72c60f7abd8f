#pragma once

#import "Photos/Photos.h"
#import "UIKit/UIKit.h"

/// The round buttons that Photos draws over its own views, such as the delete button of an album.
@interface PXUIButton : UIButton
@end

/// Draws the rounded corners over an album's cover.
@interface PXRoundedCornerOverlayView : UIImageView
@end

/// Feeds the lists of albums and knows which of them may be put into another order.
@interface PXPhotoKitCollectionsDataSourceManager : NSObject
/// YES for the albums and folders of the user.
- (BOOL)canReorderCollection:(PHCollection*)collection;
@end
