#import "AppSupport/AppSupport.h"

#import "AppSupport/Unlocking.h"

#include "device/message_centres.h"
#include "device/threads.h"
#include "frameworks/Foundation/PropertyLists.h"

#include <memory>
#include <mutex>
#include <string>

static NSString* const messageNameKey = @"name";
static NSString* const messageUserInfoKey = @"userInfo";

namespace {

struct Handler {
    id target; // not retained, as on the device
    SEL selector;
};

std::string textOf(NSString* string) { return [string UTF8String]; }

NSDictionary* decoded(const std::string& message) {
    NSPropertyListFormat format{};
    NSString* problem = nil;
    return [NSPropertyListSerialization propertyListFromData:[NSData dataWithBytes:message.data()
                                                                            length:message.size()]
                                            mutabilityOption:NSPropertyListImmutable
                                                      format:&format
                                            errorDescription:&problem];
}

NSData* encoded(NSDictionary* message) {
    if (!simulator::isPropertyList(message)) return nil;
    NSString* problem = nil;
    return [NSPropertyListSerialization dataFromPropertyList:message
                                                      format:NSPropertyListBinaryFormat_v1_0
                                            errorDescription:&problem];
}

std::mutex& centresLock() {
    static auto* lock = new std::mutex;
    return *lock;
}

} // namespace

@implementation CPDistributedMessagingCenter

+ (instancetype)centerNamed:(NSString*)name {
    static NSMutableDictionary* centres = [[NSMutableDictionary alloc] init];
    const std::lock_guard guard(centresLock());
    CPDistributedMessagingCenter* centre = [centres objectForKey:name];
    if (centre == nil) {
        centre = [[[self alloc] initWithName:name] autorelease];
        [centres setObject:centre forKey:name];
    }
    return centre;
}

- (instancetype)initWithName:(NSString*)name {
    self = [super init];
    if (self != nil) {
        _name = [name copy];
        _handlers = [[NSMutableDictionary alloc] init];
    }
    return self;
}

- (void)dealloc {
    [self stopServer];
    [_name release];
    [_handlers release];
    [super dealloc];
}

- (NSString*)name {
    return _name;
}

- (BOOL)sendMessageName:(NSString*)name userInfo:(NSDictionary*)userInfo {
    NSMutableDictionary* message = [NSMutableDictionary dictionaryWithObject:name forKey:messageNameKey];
    if (userInfo != nil) [message setObject:userInfo forKey:messageUserInfoKey];
    NSData* bytes = encoded(message);
    if (bytes == nil) {
        NSLog(@"%@: the user info of %@ is no property list", _name, name);
        return NO;
    }
    const std::string_view text(static_cast<const char*>([bytes bytes]), [bytes length]);
    return simulator::sendToCentre(textOf(_name), _unlocked != NO, text) ? YES : NO;
}

- (void)runServerOnCurrentThread {
    NSThread* thread = [NSThread currentThread];
    [self stopServer];
    _server =
        new simulator::MessageServer(textOf(_name), _unlocked != NO, [self, thread](std::string message) {
            simulator::performOnThread(
                thread, [self, message = std::move(message)] { [self receive:decoded(message)]; });
        });
}

- (void)stopServer {
    delete _server;
    _server = nullptr;
}

- (void)receive:(NSDictionary*)message {
    NSString* name = [message objectForKey:messageNameKey];
    NSValue* stored = [_handlers objectForKey:name];
    if (stored == nil) return;
    Handler handler{};
    [stored getValue:&handler];
    [handler.target performSelector:handler.selector
                         withObject:name
                         withObject:[message objectForKey:messageUserInfoKey]];
}

- (void)registerForMessageName:(NSString*)name target:(id)target selector:(SEL)selector {
    const Handler handler{target, selector};
    [_handlers setObject:[NSValue valueWithBytes:&handler objCType:@encode(Handler)] forKey:name];
}

- (void)unregisterForMessageName:(NSString*)name {
    [_handlers removeObjectForKey:name];
}

- (void)simulatorUnlock {
    _unlocked = YES;
    if (_server != nullptr) _server->unlock();
}
@end
