// LocalAuthentication: Touch ID and Face ID.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper {

enum class LAPolicy : NSInteger { deviceOwnerAuthenticationWithBiometrics = 1 };

enum class LABiometryType : NSInteger { faceId = 2 };

namespace laError {
inline constexpr NSInteger userFallback = -3;
}

struct LAContext : NSObject {
    static constexpr FixedString className = "LAContext";

    bool canEvaluatePolicy(LAPolicy policy) const {
        return send<LAContext, "canEvaluatePolicy:error:", bool>(*this, policy, NSString::noError);
    }

    // From iOS 11 on, and known only once canEvaluatePolicy was asked.
    LABiometryType biometryType() const { return send<LAContext, "biometryType", LABiometryType>(*this); }

    // The reply, void(bool success, NSError error), arrives on a queue of the framework.
    void evaluatePolicy(LAPolicy policy, NSString reason, Block reply) const {
        send<LAContext, "evaluatePolicy:localizedReason:reply:", void>(*this, policy, reason, reply);
    }
};

} // namespace rollkeeper
