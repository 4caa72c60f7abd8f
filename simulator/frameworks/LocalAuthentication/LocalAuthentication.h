// Authentication of the device's owner; how the dialog ends is a condition of the device.
#pragma once

#import <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, LAPolicy) {
    LAPolicyDeviceOwnerAuthenticationWithBiometrics = 1,
    LAPolicyDeviceOwnerAuthentication = 2,
};

typedef NS_ENUM(NSInteger, LABiometryType) {
    LABiometryTypeNone = 0,
    LABiometryTypeTouchID = 1,
    LABiometryTypeFaceID = 2,
};

typedef NS_ENUM(NSInteger, LAError) {
    LAErrorAuthenticationFailed = -1,
    LAErrorUserCancel = -2,
    LAErrorUserFallback = -3,
    LAErrorTouchIDNotAvailable = -6,
};

extern NSString* const LAErrorDomain;

@interface LAContext : NSObject {
    LABiometryType _biometryType;
}
// Known only once the context was asked whether it can evaluate a policy.
@property (nonatomic, readonly) LABiometryType biometryType;
- (BOOL)canEvaluatePolicy:(LAPolicy)policy error:(NSError**)error;
// The reply runs on a queue of the framework's own, never on the caller's thread. An empty reason raises.
// From iOS 11 on, asking for Face ID ends an application that does not describe its usage.
- (void)evaluatePolicy:(LAPolicy)policy
       localizedReason:(NSString*)localizedReason
                 reply:(void (^)(BOOL success, NSError* error))reply;
@end
