#include "device/clock.h"

#include "device/threads.h"
#include "frameworks/ObjectiveC/Replacement.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <map>
#include <mutex>
#include <optional>
#include <stdexcept>

// Calls a timer's own target as an event of the application, or a function in its place.
@interface SimulatorTimerTarget : NSObject {
    id _target;
    SEL _selector;
    std::function<void()> _action;
}
- (instancetype)initWithTarget:(id)target selector:(SEL)selector;
- (instancetype)initWithAction:(std::function<void()>)action;
- (void)timerFired:(NSTimer*)timer;
@end

@implementation SimulatorTimerTarget
- (instancetype)initWithTarget:(id)target selector:(SEL)selector {
    self = [super init];
    if (self != nil) {
        _target = [target retain];
        _selector = selector;
    }
    return self;
}

- (instancetype)initWithAction:(std::function<void()>)action {
    self = [super init];
    if (self != nil) _action = std::move(action);
    return self;
}

- (void)dealloc {
    [_target release];
    [super dealloc];
}

- (void)timerFired:(NSTimer*)timer {
    simulator::runAsEvent([&] {
        if (_action)
            _action();
        else
            [_target performSelector:_selector withObject:timer];
    });
}
@end

namespace simulator {
namespace {

using ScheduleTimer = NSTimer* (*)(Class, SEL, NSTimeInterval, id, SEL, id, BOOL);
ScheduleTimer scheduleOnRunLoop;

double realSeconds() {
    static const auto start = std::chrono::steady_clock::now();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// A timer that is not on a run loop: the clock makes it fire, again and again when it repeats.
void fireByHand(NSTimer* timer, double interval, bool repeats) {
    [timer retain];
    clock().after(interval, [timer, interval, repeats] {
        if ([timer isValid]) [timer fire];
        if (repeats && [timer isValid]) fireByHand(timer, interval, true);
        [timer release];
    });
}

NSTimer* scheduledTimer(Class timerClass, SEL command, NSTimeInterval interval, id target, SEL selector,
                        id userInfo, BOOL repeats) {
    SimulatorTimerTarget* event = [[[SimulatorTimerTarget alloc] initWithTarget:target
                                                                       selector:selector] autorelease];
    if (!clock().isManual())
        return scheduleOnRunLoop(timerClass, command, interval, event, @selector(timerFired:), userInfo,
                                 repeats);
    NSTimer* timer = [timerClass timerWithTimeInterval:interval
                                                target:event
                                              selector:@selector(timerFired:)
                                              userInfo:userInfo
                                               repeats:repeats];
    fireByHand(timer, interval, repeats);
    return timer;
}

__attribute__((constructor)) void takeOverScheduledTimers() {
    scheduleOnRunLoop = replaceMethod(
        "NSTimer", '+', "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:", scheduledTimer);
}

} // namespace

struct Clock::State {
    struct Waiting {
        double deadline;
        NSThread* thread; // retained
        std::function<void()> action;
        NSTimer* timer; // retained; nil in manual time
    };

    mutable std::mutex lock;
    std::atomic<bool> manual = false;
    double manualNow = 0;
    TimerIdentifier lastIdentifier = 0;
    std::map<TimerIdentifier, Waiting> waiting;

    std::optional<Waiting> take(TimerIdentifier identifier) {
        const std::lock_guard guard(lock);
        const auto found = waiting.find(identifier);
        if (found == waiting.end()) return std::nullopt;
        Waiting taken = std::move(found->second);
        waiting.erase(found);
        return taken;
    }

    void fire(TimerIdentifier identifier) {
        const std::optional<Waiting> due = take(identifier);
        if (!due) return;
        [due->thread autorelease];
        [due->timer autorelease];
        due->action();
    }

    // The next timer that is due by `end`, the earliest first, those of one time in the order they were made.
    std::optional<TimerIdentifier> nextDue(double end) {
        const std::lock_guard guard(lock);
        const auto earliest = std::ranges::min_element(
            waiting, [](const auto& a, const auto& b) { return a.second.deadline < b.second.deadline; });
        if (earliest == waiting.end() || earliest->second.deadline > end) return std::nullopt;
        manualNow = std::max(manualNow, earliest->second.deadline);
        return earliest->first;
    }
};

Clock::Clock() : m_state(new State) {}

Clock& clock() {
    static Clock& shared = *new Clock;
    return shared;
}

double Clock::now() const {
    if (!isManual()) return realSeconds();
    const std::lock_guard guard(m_state->lock);
    return m_state->manualNow;
}

void Clock::useManualTime() { m_state->manual = true; }
void Clock::useRealTime() { m_state->manual = false; }
bool Clock::isManual() const { return m_state->manual; }

Clock::TimerIdentifier Clock::after(double seconds, std::function<void()> action) {
    registerThread();
    State* state = m_state;
    const double deadline = now() + seconds;
    const std::lock_guard guard(state->lock);
    const TimerIdentifier identifier = ++state->lastIdentifier;
    NSTimer* timer = nil;
    if (!isManual()) {
        auto fire = [state, identifier] { state->fire(identifier); };
        SimulatorTimerTarget* event = [[[SimulatorTimerTarget alloc] initWithAction:fire] autorelease];
        timer = [scheduleOnRunLoop(
            [NSTimer class], @selector(scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:),
            seconds, event, @selector(timerFired:), nil, NO) retain];
    }
    state->waiting.emplace(
        identifier, State::Waiting{deadline, [[NSThread currentThread] retain], std::move(action), timer});
    return identifier;
}

void Clock::cancel(TimerIdentifier identifier) {
    const std::optional<State::Waiting> cancelled = m_state->take(identifier);
    if (!cancelled) return;
    [cancelled->timer invalidate];
    [cancelled->timer release];
    [cancelled->thread release];
}

void Clock::advance(double seconds) {
    if (!isManual()) throw std::logic_error("only a manual clock can be advanced");
    State* state = m_state;
    const double end = now() + seconds;
    while (const std::optional<TimerIdentifier> due = state->nextDue(end)) {
        NSThread* thread = nil;
        {
            const std::lock_guard guard(state->lock);
            thread = state->waiting.at(*due).thread;
            // What runs elsewhere fires once it gets there, but is not due again here.
            state->waiting.at(*due).deadline = thread == [NSThread currentThread] ? end : HUGE_VAL;
        }
        if (thread == [NSThread currentThread])
            runAsEvent([&] { state->fire(*due); });
        else
            performOnThread(thread, [state, identifier = *due] { state->fire(identifier); });
    }
    const std::lock_guard guard(state->lock);
    state->manualNow = end;
}

std::size_t Clock::pendingTimers() const {
    const std::lock_guard guard(m_state->lock);
    return m_state->waiting.size();
}

} // namespace simulator
