#import "PhotosUI/PUOneUp.h"

@implementation PUOneUpSettings

@synthesize defaultMaximumZoomFactor = _defaultMaximumZoomFactor;

+ (PUOneUpSettings*)sharedInstance {
    static PUOneUpSettings* shared = [[PUOneUpSettings alloc] init];
    return shared;
}

- (instancetype)init {
    self = [super init];
    if (self) [self setDefaultValues];
    return self;
}

- (void)setDefaultValues {
    constexpr double stockMaximum = 2.5;
    [self setDefaultMaximumZoomFactor:stockMaximum];
}

@end
