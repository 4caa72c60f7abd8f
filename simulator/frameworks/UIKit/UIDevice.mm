#import "UIKit/UIDevice.h"

#include "device/conditions.h"

@implementation _UITapticEngine

@synthesize actuatedFeedback = _actuatedFeedback;

- (instancetype)init {
    self = [super init];
    _actuatedFeedback = [[NSMutableArray alloc] init];
    return self;
}

- (void)dealloc {
    [_actuatedFeedback release];
    [super dealloc];
}

- (void)actuateFeedback:(NSInteger)feedback {
    [_actuatedFeedback addObject:[NSNumber numberWithLong:feedback]];
}

@end

@implementation UIDevice

+ (UIDevice*)currentDevice {
    static UIDevice* const device = [[UIDevice alloc] init];
    return device;
}

- (UIUserInterfaceIdiom)userInterfaceIdiom {
    return simulator::isPad() ? UIUserInterfaceIdiomPad : UIUserInterfaceIdiomPhone;
}

- (_UITapticEngine*)_tapticEngine {
    static _UITapticEngine* const engine = [[_UITapticEngine alloc] init];
    return simulator::currentConditions()->hapticEngine ? engine : nil;
}

@end

namespace simulator {

bool isPad() { return currentConditions()->idiom == Idiom::pad; }

} // namespace simulator
