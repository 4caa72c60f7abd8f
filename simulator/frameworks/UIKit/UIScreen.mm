#import "UIKit/UIScreen.h"

#include "device/conditions.h"

@implementation UIScreen

+ (UIScreen*)mainScreen {
    static UIScreen* const screen = [[UIScreen alloc] init];
    return screen;
}

- (CGRect)bounds {
    const auto conditions = simulator::currentConditions();
    return CGRectMake(0, 0, conditions->screen.width, conditions->screen.height);
}

- (CGFloat)scale {
    return simulator::currentConditions()->screen.scale;
}

@end
