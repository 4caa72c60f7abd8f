#import "LocalAuthentication/LocalAuthentication.h"

#include "Dispatch/Dispatch.h"
#include "LocalAuthentication/Reasons.h"
#include "device/conditions.h"

#include <Block.h>

#include <mutex>
#include <optional>

NSString* const LAErrorDomain = @"com.apple.LocalAuthentication";

namespace {

using simulator::BiometricOutcome;

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

dispatch_queue_t replyQueue() {
    static dispatch_queue_t queue =
        dispatch_queue_create("com.apple.LocalAuthentication", DISPATCH_QUEUE_SERIAL);
    return queue;
}

struct Reasons {
    std::mutex lock;
    std::vector<std::string> list;
};

Reasons& reasons() {
    static auto* shared = new Reasons;
    return *shared;
}

} // namespace

std::vector<std::string> simulator::authenticationReasons() {
    const std::lock_guard guard(reasons().lock);
    return reasons().list;
}

@implementation LAContext
- (BOOL)canEvaluatePolicy:(LAPolicy)policy error:(NSError**)error {
    const Ending& ending = currentEnding();
    const bool available = ending.outcome != BiometricOutcome::notAvailable ||
                           policy != LAPolicyDeviceOwnerAuthenticationWithBiometrics;
    if (!available && error != nullptr) *error = errorOf(ending);
    return available ? YES : NO;
}

- (BOOL)canEvaluatePolicy:(LAPolicy)policy {
    return [self canEvaluatePolicy:policy error:NULL];
}

- (void)evaluatePolicy:(LAPolicy)policy
       localizedReason:(NSString*)localizedReason
                 reply:(void (^)(BOOL success, NSError* error))reply {
    (void)policy;
    if ([localizedReason length] == 0)
        [NSException raise:NSInvalidArgumentException format:@"Non-empty localizedReason must be provided."];
    {
        const std::lock_guard guard(reasons().lock);
        reasons().list.emplace_back([localizedReason UTF8String]);
    }
    const Ending ending = currentEnding();
    void (^answer)(BOOL, NSError*) = Block_copy(reply);
    dispatch_async(replyQueue(), ^{
        answer(ending.success, errorOf(ending));
        Block_release(answer);
    });
}
@end
