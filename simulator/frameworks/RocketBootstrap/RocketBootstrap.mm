#import "RocketBootstrap/RocketBootstrap.h"

void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter* messagingCenter) {
    [messagingCenter simulatorUnlock];
}
