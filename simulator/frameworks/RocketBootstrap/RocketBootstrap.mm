#import "RocketBootstrap/RocketBootstrap.h"

#import "AppSupport/Unlocking.h"

void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter* messagingCenter) {
    [messagingCenter simulatorUnlock];
}
