#import "UIKit/UIDevice.h"

#include "device/conditions.h"
#include "device/strings.h"

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

- (NSString*)systemVersion {
    using simulator::Release;
    const Release release = simulator::currentRelease();
    // The release that has everything passes for the usual one.
    return simulator::string(
        simulator::releaseName(release == Release::complete ? Release::ios10_3 : release));
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
