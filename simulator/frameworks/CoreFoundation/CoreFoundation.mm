#import "CoreFoundation/CoreFoundation.h"

#include "device/local_sockets.h"
#include "device/releases.h"
#include "device/root.h"
#include "device/strings.h"
#include "device/threads.h"

#include <unistd.h>

#include <vector>

double kCFCoreFoundationVersionNumber = simulator::coreFoundationVersion(simulator::Release::ios10_3);

struct __CFNotificationCenter {};

namespace {

struct Observer {
    const void* observer;
    CFNotificationCallback callback;
    std::string name;
};

// Of the main thread, where notifications are observed and delivered.
[[clang::no_destroy]] constinit std::vector<Observer> observers;

// One for each process of the device that observes anything.
std::filesystem::path mailboxes() { return simulator::mountedDevice() / "run" / "notifications"; }

NSString* bridged(CFStringRef text) { return reinterpret_cast<NSString*>(const_cast<__CFString*>(text)); }

// The list is copied, as a callback may change it.
void deliver(const std::string& name) {
    for (const Observer& each : std::vector(observers))
        if (each.name == name)
            each.callback(CFNotificationCenterGetDarwinNotifyCenter(), const_cast<void*>(each.observer),
                          reinterpret_cast<CFStringRef>(simulator::string(name)), nullptr, nullptr);
}

} // namespace

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void) {
    static __CFNotificationCenter centre;
    return &centre;
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef, const void* observer,
                                     CFNotificationCallback callback, CFStringRef name, const void*,
                                     CFNotificationSuspensionBehavior) {
    [[maybe_unused]] static const auto& mailbox =
        *new simulator::Mailbox(mailboxes() / std::to_string(getpid()), [](const std::string& name) {
            simulator::performOnMainThread([name] { deliver(name); });
        });
    observers.push_back({observer, callback, simulator::text(bridged(name))});
}

void CFNotificationCenterRemoveObserver(CFNotificationCenterRef, const void* observer, CFStringRef name,
                                        const void*) {
    std::erase_if(observers, [&](const Observer& each) {
        return each.observer == observer && each.name == simulator::text(bridged(name));
    });
}

void CFNotificationCenterPostNotification(CFNotificationCenterRef, CFStringRef name, const void*,
                                          CFDictionaryRef, Boolean) {
    std::error_code ignored;
    for (const auto& mailbox : std::filesystem::directory_iterator(mailboxes(), ignored))
        if (!simulator::sendToMailbox(mailbox, simulator::text(bridged(name))))
            std::filesystem::remove(mailbox, ignored); // its process has gone
}
