// LocalAuthentication: Touch ID.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper {

enum class LAPolicy : NSInteger { deviceOwnerAuthenticationWithBiometrics = 1 };

namespace laError {
inline constexpr NSInteger userFallback = -3;
}

struct LAContext : NSObject {
    static constexpr FixedString className = "LAContext";

    bool canEvaluatePolicy(LAPolicy policy) const {
        return send<LAContext, "canEvaluatePolicy:error:", bool>(*this, policy, NSString::noError);
    }

    // The reply, void(bool success, NSError error), arrives on a queue of the framework.
    void evaluatePolicy(LAPolicy policy, NSString reason, Block reply) const {
        send<LAContext, "evaluatePolicy:localizedReason:reply:", void>(*this, policy, reason, reply);
    }
};

} // namespace rollkeeper
