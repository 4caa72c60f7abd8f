#import "UIKit/UIDevice.h"

#include "device/conditions.h"

#include <string>

@implementation _UITapticEngine

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

- (NSArray*)actuatedFeedback {
    return [[_actuatedFeedback copy] autorelease];
}

@end

@implementation UIDevice

+ (UIDevice*)currentDevice {
    static UIDevice* const device = [[UIDevice alloc] init];
    return device;
}

- (instancetype)init {
    self = [super init];
    _engine = [[_UITapticEngine alloc] init];
    return self;
}

- (void)dealloc {
    [_engine release];
    [super dealloc];
}

- (UIUserInterfaceIdiom)userInterfaceIdiom {
    const bool isPad = simulator::currentConditions()->idiom == simulator::Idiom::pad;
    return isPad ? UIUserInterfaceIdiomPad : UIUserInterfaceIdiomPhone;
}

- (NSString*)systemVersion {
    return [NSString stringWithUTF8String:std::string(releaseName(simulator::currentRelease())).c_str()];
}

- (_UITapticEngine*)_tapticEngine {
    return simulator::currentConditions()->hapticEngine ? _engine : nil;
}

@end
