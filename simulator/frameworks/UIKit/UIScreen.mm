#import "UIKit/UIScreen.h"

#import "UIKit/internal/Orientation.h"
#include "device/conditions.h"

#include <utility>

namespace {

// Before iOS 8 the screen did not turn with the device.
bool boundsFollowOrientation() { return simulator::currentRelease() >= simulator::Release::ios8_4; }

} // namespace

@implementation UIScreen

+ (UIScreen*)mainScreen {
    static UIScreen* const screen = [[UIScreen alloc] init];
    return screen;
}

- (CGRect)bounds {
    const auto conditions = simulator::currentConditions();
    CGSize size = {conditions->screen.width, conditions->screen.height};
    if (simulator::isLandscape() && boundsFollowOrientation()) std::swap(size.width, size.height);
    return {CGPointZero, size};
}

- (CGFloat)scale {
    return simulator::currentConditions()->screen.scale;
}

@end
