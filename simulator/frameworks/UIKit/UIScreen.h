// The device's screen, measured as the device's conditions say.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@interface UIScreen : NSObject

+ (UIScreen*)mainScreen;

// In points, as held upright.
@property (nonatomic, readonly) CGRect bounds;
// Pixels to a point.
@property (nonatomic, readonly) CGFloat scale;

@end
