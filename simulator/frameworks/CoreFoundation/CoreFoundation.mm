#import "CoreFoundation/CoreFoundation.h"

#include "device/notifications.h"
#include "device/releases.h"
#include "device/threads.h"

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

double kCFCoreFoundationVersionNumber = simulator::coreFoundationVersion(simulator::Release::ios10_3);

struct __CFNotificationCenter {};

namespace {

struct Observer {
    const void* observer;
    CFNotificationCallback callback;
    std::string name;
};

struct Observers {
    std::mutex lock;
    std::vector<Observer> list;
};

Observers& observers() {
    static auto* shared = new Observers;
    return *shared;
}

std::string textOf(CFStringRef name) {
    return [reinterpret_cast<NSString*>(const_cast<__CFString*>(name)) UTF8String];
}

// On the main thread. The list is copied, as a callback may change it.
void deliver(const std::string& name) {
    std::vector<Observer> called;
    {
        const std::lock_guard guard(observers().lock);
        std::ranges::copy_if(observers().list, std::back_inserter(called),
                             [&](const Observer& each) { return each.name == name; });
    }
    NSString* text = [NSString stringWithUTF8String:name.c_str()];
    for (const Observer& each : called)
        each.callback(CFNotificationCenterGetDarwinNotifyCenter(), const_cast<void*>(each.observer),
                      reinterpret_cast<CFStringRef>(text), nullptr, nullptr);
}

void begin() {
    simulator::receiveNotifications(
        [](const std::string& name) { simulator::performOnMainThread([name] { deliver(name); }); });
}

} // namespace

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void) {
    static __CFNotificationCenter centre;
    return &centre;
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef, const void* observer,
                                     CFNotificationCallback callback, CFStringRef name, const void*,
                                     CFNotificationSuspensionBehavior) {
    begin();
    const std::lock_guard guard(observers().lock);
    observers().list.push_back({observer, callback, textOf(name)});
}

void CFNotificationCenterRemoveObserver(CFNotificationCenterRef, const void* observer, CFStringRef name,
                                        const void*) {
    const std::lock_guard guard(observers().lock);
    std::erase_if(observers().list, [&](const Observer& each) {
        return each.observer == observer && (name == nullptr || each.name == textOf(name));
    });
}

void CFNotificationCenterPostNotification(CFNotificationCenterRef, CFStringRef name, const void*,
                                          CFDictionaryRef, Boolean) {
    simulator::postNotification(textOf(name));
}
