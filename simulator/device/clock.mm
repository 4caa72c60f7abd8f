#include "device/clock.h"

#include "device/threads.h"
#include "frameworks/ObjectiveC/Replacement.h"

#import <Foundation/Foundation.h>

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>

namespace simulator {
namespace {

using ScheduleTimer = NSTimer* (*)(Class, SEL, NSTimeInterval, id, SEL, id, BOOL);
ScheduleTimer scheduleOnRunLoop;
constexpr const char* scheduling = "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:";

using Object = std::shared_ptr<NSObject>;
Object owned(NSObject* object) {
    return {[object retain], [](NSObject* kept) { [kept release]; }};
}

// What waits for its time in manual time.
struct Waiting {
    Object thread;
    std::function<void()> action;
};

struct ManualTime {
    mutable std::mutex lock;
    std::atomic<bool> isUsed = false;
    double now = 0;
    std::multimap<double, Waiting> waiting; // by deadline; those of one time in the order they were made

    void add(double seconds, NSThread* thread, std::function<void()> action) {
        const std::lock_guard guard(lock);
        waiting.emplace(now + seconds, Waiting{owned(thread), std::move(action)});
    }

    std::optional<Waiting> takeDue(double end) {
        const std::lock_guard guard(lock);
        const auto earliest = waiting.begin();
        if (earliest == waiting.end() || earliest->first > end) return std::nullopt;
        now = std::max(now, earliest->first);
        return std::move(waiting.extract(earliest).mapped());
    }
};

ManualTime& manual() {
    static auto* shared = new ManualTime;
    return *shared;
}

// A timer that is not on a run loop: the clock makes it fire, again and again when it repeats.
void fireByHand(const Object& kept, double interval, bool repeats) {
    clock().after(interval, [kept, interval, repeats] {
        auto* timer = static_cast<NSTimer*>(kept.get());
        if ([timer isValid]) [timer fire];
        if (repeats && [timer isValid]) fireByHand(kept, interval, true);
    });
}

NSTimer* scheduledTimer(Class timerClass, SEL command, NSTimeInterval interval, id target, SEL selector,
                        id userInfo, BOOL repeats) {
    id event = asObject([target = owned(target), selector](id timer) {
        [target.get() performSelector:selector withObject:timer];
    });
    if (!manual().isUsed)
        return scheduleOnRunLoop(timerClass, command, interval, event, @selector(perform:), userInfo,
                                 repeats);
    NSTimer* timer = [timerClass timerWithTimeInterval:interval
                                                target:event
                                              selector:@selector(perform:)
                                              userInfo:userInfo
                                               repeats:repeats];
    fireByHand(owned(timer), interval, repeats);
    return timer;
}

__attribute__((constructor)) void takeOverScheduledTimers() {
    scheduleOnRunLoop = replaceMethod("NSTimer", '+', scheduling, scheduledTimer);
}

} // namespace

Clock& clock() {
    static Clock shared;
    return shared;
}

double Clock::now() const {
    if (!manual().isUsed)
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    const std::lock_guard guard(manual().lock);
    return manual().now;
}

void Clock::useManualTime() { manual().isUsed = true; }

void Clock::after(double seconds, std::function<void()> action) {
    registerThread();
    if (manual().isUsed) return manual().add(seconds, [NSThread currentThread], std::move(action));
    id event = asObject([action = std::move(action)](id) { action(); });
    scheduleOnRunLoop([NSTimer class], sel_registerName(scheduling), seconds, event, @selector(perform:), nil,
                      NO);
}

void Clock::afterOnMainThread(double seconds, std::function<void()> action) {
    if (manual().isUsed) return manual().add(seconds, [NSThread mainThread], std::move(action));
    performOnMainThread([this, seconds, action = std::move(action)] { after(seconds, action); });
}

void Clock::advance(double seconds) {
    if (!manual().isUsed) throw std::logic_error("only a manual clock can be advanced");
    const double end = now() + seconds;
    while (std::optional<Waiting> due = manual().takeDue(end)) {
        if (due->thread.get() == [NSThread currentThread])
            runAsEvent(due->action);
        else
            performOnThread(static_cast<NSThread*>(due->thread.get()), std::move(due->action));
    }
    const std::lock_guard guard(manual().lock);
    manual().now = end;
}

std::size_t Clock::pendingTimers() const {
    const std::lock_guard guard(manual().lock);
    return manual().waiting.size();
}

} // namespace simulator
