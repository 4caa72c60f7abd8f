// How the sandbox is opened for one message centre of this process.
#pragma once

#import "AppSupport/AppSupport.h"

@interface CPDistributedMessagingCenter (SimulatorUnlocking)
- (void)simulatorUnlock;
@end
