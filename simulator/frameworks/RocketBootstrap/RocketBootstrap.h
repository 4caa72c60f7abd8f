// Opens a message centre to sandboxed applications.
#pragma once

#import "AppSupport/AppSupport.h"

#ifdef __cplusplus
extern "C" {
#endif

// Both the server and the sandboxed sender must apply it to their object of the centre.
void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter* messagingCenter);

#ifdef __cplusplus
}
#endif
