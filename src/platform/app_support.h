// AppSupport: named message centres between processes.
#pragma once

#include "platform/foundation.h"

namespace rollkeeper {

struct CPDistributedMessagingCenter : NSObject {
    static constexpr FixedString className = "CPDistributedMessagingCenter";

    static CPDistributedMessagingCenter centerNamed(NSString name) {
        return sendToClass<CPDistributedMessagingCenter, "centerNamed:", CPDistributedMessagingCenter>(name);
    }

    // Does not wait for the receiver; a message that nobody serves is lost.
    void sendMessage(NSString name, NSDictionary userInfo) const {
        send<CPDistributedMessagingCenter, "sendMessageName:userInfo:", bool>(*this, name, userInfo);
    }
    void runServerOnCurrentThread() const {
        send<CPDistributedMessagingCenter, "runServerOnCurrentThread", void>(*this);
    }
    void registerForMessage(NSString name, Object target, SEL handler) const {
        send<CPDistributedMessagingCenter, "registerForMessageName:target:selector:", void>(
            *this, name, cast<NSObject>(target), handler);
    }
};

} // namespace rollkeeper

extern "C" {
// Lets sandboxed processes reach the centre. Called on both sides.
void rocketbootstrap_distributedmessagingcenter_apply(rollkeeper::id center);
} // extern "C"
