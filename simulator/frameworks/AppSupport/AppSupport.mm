#import "AppSupport/AppSupport.h"

#include "device/local_sockets.h"
#include "device/process.h"
#include "device/root.h"
#include "device/strings.h"
#include "device/threads.h"
#include "frameworks/Foundation/PropertyLists.h"

#include <fstream>

namespace {

std::filesystem::path mailboxOf(CPDistributedMessagingCenter* centre) {
    return simulator::mountedDevice() / "run" / "centres" / simulator::text([centre name]);
}

// A file beside the mailbox says that sandboxed processes may look the centre up.
std::filesystem::path unlockedMarkOf(CPDistributedMessagingCenter* centre) {
    return mailboxOf(centre).string() + ".unlocked";
}

} // namespace

@implementation CPDistributedMessagingCenter
@synthesize name = _name;

+ (instancetype)centerNamed:(NSString*)name {
    static NSMutableDictionary* centres = [[NSMutableDictionary alloc] init];
    CPDistributedMessagingCenter* centre = [centres objectForKey:name];
    if (centre == nil) {
        centre = [[[self alloc] init] autorelease];
        centre->_name = [name copy];
        centre->_handlers = [[NSMutableDictionary alloc] init];
        [centres setObject:centre forKey:name];
    }
    return centre;
}

- (BOOL)sendMessageName:(NSString*)name userInfo:(NSDictionary*)userInfo {
    NSMutableDictionary* message = [NSMutableDictionary dictionaryWithObject:name forKey:@"name"];
    if (userInfo != nil) [message setObject:userInfo forKey:@"userInfo"];
    NSData* bytes = simulator::propertyListAsXml(message);
    if (bytes == nil) {
        NSLog(@"%@: the user info of %@ is no property list", _name, name);
        return NO;
    }
    const bool mayPass =
        !simulator::hostIsSandboxed() || (_unlocked && std::filesystem::exists(unlockedMarkOf(self)));
    const std::string_view text(static_cast<const char*>([bytes bytes]), [bytes length]);
    return mayPass && simulator::sendToMailbox(mailboxOf(self), text) ? YES : NO;
}

- (void)runServerOnCurrentThread {
    [self stopServer];
    NSThread* thread = [NSThread currentThread];
    _server = new simulator::Mailbox(mailboxOf(self), [self, thread](const std::string& message) {
        simulator::performOnThread(thread, [self, message] {
            NSDictionary* received = simulator::propertyListIn([NSData dataWithBytes:message.data()
                                                                              length:message.size()]);
            [[_handlers objectForKey:[received objectForKey:@"name"]] perform:received];
        });
    });
    if (_unlocked) [self simulatorUnlock];
}

- (void)stopServer {
    std::filesystem::remove(unlockedMarkOf(self));
    delete _server;
    _server = nullptr;
}

- (void)registerForMessageName:(NSString*)name target:(id)target selector:(SEL)selector {
    id handler = simulator::asObject([target, selector](NSDictionary* message) {
        [target performSelector:selector
                     withObject:[message objectForKey:@"name"]
                     withObject:[message objectForKey:@"userInfo"]];
    });
    [_handlers setObject:handler forKey:name];
}

- (void)unregisterForMessageName:(NSString*)name {
    [_handlers removeObjectForKey:name];
}

- (void)simulatorUnlock {
    _unlocked = YES;
    if (_server != nullptr) std::ofstream(unlockedMarkOf(self)).put('\n');
}
@end
