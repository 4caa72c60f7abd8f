#import "QuartzCore/CALayer.h"

@implementation CALayer

@synthesize delegate = _delegate;
@synthesize cornerRadius = _cornerRadius;
@synthesize borderWidth = _borderWidth;
@synthesize masksToBounds = _masksToBounds;

+ (instancetype)layer {
    return [[[self alloc] init] autorelease];
}

@end
