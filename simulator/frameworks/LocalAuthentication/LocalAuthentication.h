// Authentication of the device's owner; how the dialog ends is a condition of the device.
#pragma once

#import <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, LAPolicy) { LAPolicyDeviceOwnerAuthenticationWithBiometrics = 1 };

typedef NS_ENUM(NSInteger, LAError) {
    LAErrorAuthenticationFailed = -1,
    LAErrorUserCancel = -2,
    LAErrorUserFallback = -3,
    LAErrorTouchIDNotAvailable = -6,
};

extern NSString* const LAErrorDomain;

@interface LAContext : NSObject
- (BOOL)canEvaluatePolicy:(LAPolicy)policy error:(NSError**)error;
// The reply runs on a queue of the framework's own, never on the caller's thread. An empty reason raises.
- (void)evaluatePolicy:(LAPolicy)policy
       localizedReason:(NSString*)localizedReason
                 reply:(void (^)(BOOL success, NSError* error))reply;
@end
