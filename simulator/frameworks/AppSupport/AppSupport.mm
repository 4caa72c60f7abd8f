#import "AppSupport/AppSupport.h"

#include "device/local_sockets.h"
#include "device/process.h"
#include "device/root.h"
#include "device/strings.h"
#include "device/threads.h"
#include "frameworks/Foundation/PropertyLists.h"

#include <fstream>
#include <map>
#include <memory>

namespace {

// Not owned.
std::map<std::string, CPDistributedMessagingCenter*>& livingCentres() {
    static auto* shared = new std::map<std::string, CPDistributedMessagingCenter*>;
    return *shared;
}

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
    CPDistributedMessagingCenter*& centre = livingCentres()[simulator::text(name)];
    if (centre != nil) return [[centre retain] autorelease];
    centre = [[[self alloc] init] autorelease];
    centre->_name = [name copy];
    centre->_handlers = [[NSMutableDictionary alloc] init];
    return centre;
}

- (void)dealloc {
    livingCentres().erase(simulator::text(_name));
    if (_server != nullptr) [self stopServer];
    [_name release];
    [_handlers release];
    [super dealloc];
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
    // What has been received is handled even when the centre has gone meanwhile.
    const std::shared_ptr<NSDictionary> handlers([_handlers retain],
                                                 [](NSDictionary* kept) { [kept release]; });
    _server = new simulator::Mailbox(mailboxOf(self), [handlers, thread](const std::string& message) {
        simulator::performOnThread(thread, [handlers, message] {
            NSDictionary* received = simulator::propertyListIn([NSData dataWithBytes:message.data()
                                                                              length:message.size()]);
            [[handlers.get() objectForKey:[received objectForKey:@"name"]] perform:received];
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
