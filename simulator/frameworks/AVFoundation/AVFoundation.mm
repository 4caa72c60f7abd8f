#import "AVFoundation/AVFoundation.h"

@implementation AVCapturePhotoOutput
@end

@implementation AVCaptureResolvedPhotoSettings

@synthesize uniqueID = _uniqueID;

- (instancetype)initWithUniqueID:(int64_t)uniqueID {
    self = [super init];
    if (self) _uniqueID = uniqueID;
    return self;
}

@end
