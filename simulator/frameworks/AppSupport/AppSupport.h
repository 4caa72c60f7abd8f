// Named message centres between the processes of the device.
#pragma once

#import <Foundation/Foundation.h>

namespace simulator {
class Mailbox;
}

@interface CPDistributedMessagingCenter : NSObject {
  @private
    NSString* _name;
    BOOL _unlocked;
    NSMutableDictionary* _handlers; // by message name
    simulator::Mailbox* _server;    // owned; null while it does not run
}
// One object per name and process while somebody owns it: a server ends with its centre. Main thread.
+ (instancetype)centerNamed:(NSString*)name;

@property (nonatomic, readonly) NSString* name;

// Sends without waiting for an answer. userInfo must be a property list or nil. NO when no server took it:
// then the message is lost.
- (BOOL)sendMessageName:(NSString*)name userInfo:(NSDictionary*)userInfo;

// Serves this centre: handlers run on the run loop of the calling thread, one message after the other.
- (void)runServerOnCurrentThread;
- (void)stopServer;

// The target is not retained; its method gets the message's name and userInfo.
- (void)registerForMessageName:(NSString*)name target:(id)target selector:(SEL)selector;
- (void)unregisterForMessageName:(NSString*)name;

// Opens the sandbox for this process's end of the centre.
- (void)simulatorUnlock;
@end
