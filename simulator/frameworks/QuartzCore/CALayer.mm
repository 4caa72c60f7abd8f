#import "QuartzCore/QuartzCore.h"

@implementation CALayer

@synthesize cornerRadius = _cornerRadius, masksToBounds = _masksToBounds;

@end
