// Where GNUstep's Foundation differs from the device's.
#include "device/process.h"
#include "frameworks/ObjectiveC/Replacement.h"

#import <Foundation/Foundation.h>
#import <GNUstepBase/NSProcessInfo+GNUstepBase.h>

namespace {

NSString* (*originalBundleIdentifier)(id, SEL);

NSString* bundleIdentifier(id self, SEL command) {
    const std::string host = simulator::hostBundleIdentifier();
    if (self != [NSBundle mainBundle] || host.empty()) return originalBundleIdentifier(self, command);
    return [NSString stringWithUTF8String:host.c_str()];
}

} // namespace

@interface SimulatorFoundation : NSObject
@end

@implementation SimulatorFoundation
+ (void)load {
    @autoreleasepool {
        originalBundleIdentifier =
            simulator::replaceMethod("NSBundle", '-', "bundleIdentifier", bundleIdentifier);
        // A damaged file is no news on the device.
        [[[NSProcessInfo processInfo] debugSet] addObject:@"NoWarn"];
    }
}
@end
