#import "LocalAuthentication/LocalAuthentication.h"

#include "Dispatch/Dispatch.h"
#include "LocalAuthentication/Reasons.h"
#include "device/conditions.h"
#include "device/process.h"
#include "device/releases.h"
#include "device/strings.h"

#include <Block.h>

#include <optional>

NSString* const LAErrorDomain = @"com.apple.LocalAuthentication";

namespace {

using simulator::BiometricOutcome;
using simulator::Biometry;

struct Ending {
    BiometricOutcome outcome;
    BOOL success;
    std::optional<LAError> error;
};

constexpr Ending endings[] = {
    {BiometricOutcome::success, YES, std::nullopt},
    {BiometricOutcome::failed, NO, LAErrorAuthenticationFailed},
    {BiometricOutcome::userCancel, NO, LAErrorUserCancel},
    {BiometricOutcome::userFallback, NO, LAErrorUserFallback},
    {BiometricOutcome::notAvailable, NO, LAErrorTouchIDNotAvailable},
    {BiometricOutcome::refusedWithoutError, NO, std::nullopt},
};

const Ending& currentEnding() {
    return endings[static_cast<std::size_t>(simulator::currentConditions()->biometricOutcome)];
}

NSError* errorOf(const Ending& ending) {
    return ending.error ? [NSError errorWithDomain:LAErrorDomain code:*ending.error userInfo:nil] : nil;
}

// Of the main thread, on which the device's owner is asked.
[[clang::no_destroy]] constinit std::vector<std::string> reasons;

} // namespace

std::vector<std::string> simulator::authenticationReasons() { return reasons; }

@implementation LAContext
@synthesize biometryType = _biometryType;

- (BOOL)canEvaluatePolicy:(LAPolicy)policy error:(NSError**)error {
    const Biometry biometry = simulator::currentConditions()->biometry;
    _biometryType = static_cast<LABiometryType>(biometry);
    const Ending& unavailable = endings[static_cast<std::size_t>(BiometricOutcome::notAvailable)];
    const bool available = policy != LAPolicyDeviceOwnerAuthenticationWithBiometrics ||
                           (biometry != Biometry::none && currentEnding().outcome != unavailable.outcome);
    if (!available && error != nullptr) *error = errorOf(unavailable);
    return available ? YES : NO;
}

- (void)evaluatePolicy:(LAPolicy)policy
       localizedReason:(NSString*)localizedReason
                 reply:(void (^)(BOOL success, NSError* error))reply {
    if (policy == LAPolicyDeviceOwnerAuthenticationWithBiometrics &&
        simulator::currentConditions()->biometry == Biometry::faceId &&
        simulator::currentRelease() >= simulator::Release::ios11_4 &&
        !simulator::hostDescribesUsage(simulator::faceIdUsage))
        simulator::endForMissingDescription(simulator::faceIdUsage);
    if ([localizedReason length] == 0)
        [NSException raise:NSInvalidArgumentException format:@"Non-empty localizedReason must be provided."];
    reasons.push_back(simulator::text(localizedReason));
    static dispatch_queue_t queue = dispatch_queue_create("LocalAuthentication", DISPATCH_QUEUE_SERIAL);
    const Ending ending = currentEnding();
    void (^answer)(BOOL, NSError*) = Block_copy(reply);
    dispatch_async(queue, ^{
        answer(ending.success, errorOf(ending));
        Block_release(answer);
    });
}
@end
