#import "PhotosUICore/PhotosUICore.h"

@implementation PXRoundedCornerOverlayView
@end
