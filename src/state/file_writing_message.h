// The message by which processes have SpringBoard write their state files.
#pragma once

#include "platform/app_support.h"

namespace rollkeeper::fileWriting {

inline NSString messageName() { return "savearray"_ns; }

inline NSString senderKey() { return "id"_ns; } // for a reader of the traffic; the server ignores it
inline NSString arrayKey() { return "array"_ns; }
inline NSString pathKey() { return "path"_ns; }

// The centre that both sides meet at, opened for sandboxed processes.
inline CPDistributedMessagingCenter center() {
    const auto center = CPDistributedMessagingCenter::centerNamed("com.nrv.rollkeeper"_ns);
    rocketbootstrap_distributedmessagingcenter_apply(center.pointer);
    return center;
}

} // namespace rollkeeper::fileWriting
