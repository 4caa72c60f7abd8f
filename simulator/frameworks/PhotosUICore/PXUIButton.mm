#import "PhotosUICore/PhotosUICore.h"

@implementation PXUIButton
@end
