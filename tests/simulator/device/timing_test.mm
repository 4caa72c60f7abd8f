#include "device/clock.h"
#include "device/threads.h"
#include "frameworks/Dispatch/Dispatch.h"
#include "simulator/device/device_test.h"

#include <atomic>
#include <thread>

@interface TimerCounter : NSObject {
  @public
    int fired;
}
- (void)timerFired:(NSTimer*)timer;
@end
@implementation TimerCounter
- (void)timerFired:(NSTimer*)timer {
    EXPECT_TRUE([timer isKindOfClass:[NSTimer class]]);
    ++fired;
}
@end

namespace simulator::test {
namespace {

using Order = std::vector<std::string>;

class Timing : public DeviceTest {
  protected:
    TimerCounter* counter = [[[TimerCounter alloc] init] autorelease];

    NSTimer* schedule(double seconds, BOOL repeats) {
        return [NSTimer scheduledTimerWithTimeInterval:seconds
                                                target:counter
                                              selector:@selector(timerFired:)
                                              userInfo:nil
                                               repeats:repeats];
    }
};

TEST_F(Timing, moved_time_runs_what_falls_due_in_order) {
    Clock& clock = simulator::clock();
    clock.useManualTime();
    Order order;
    clock.after(0.9, [&] { order.push_back("later"); });
    clock.after(0.5, [&] {
        order.push_back("first");
        clock.after(0.1, [&] { order.push_back("follows"); });
    });
    const auto cancelled = clock.after(0.2, [&] { order.push_back("cancelled"); });
    clock.cancel(cancelled);
    clock.advance(0.89);
    EXPECT_EQ(order, (Order{"first", "follows"}));
    clock.advance(0.01);
    EXPECT_EQ(order, (Order{"first", "follows", "later"}));
    EXPECT_EQ(clock.pendingTimers(), 0u);
}

TEST_F(Timing, scheduled_timers_follow_moved_time) {
    simulator::clock().useManualTime();
    schedule(0.9, NO);
    NSTimer* repeating = schedule(0.3, YES);
    NSTimer* invalid = schedule(0.1, NO);
    [invalid invalidate];
    simulator::clock().advance(0.8);
    EXPECT_EQ(counter->fired, 2);
    simulator::clock().advance(0.15);
    EXPECT_EQ(counter->fired, 4);
    [repeating invalidate];
    simulator::clock().advance(10);
    EXPECT_EQ(counter->fired, 4);
}

TEST_F(Timing, timers_fire_on_the_thread_that_made_them) {
    simulator::clock().useManualTime();
    std::atomic<bool> scheduled = false;
    std::atomic<bool> fired = false;
    std::thread other([&] {
        registerThread();
        @autoreleasepool {
            NSThread* mine = [NSThread currentThread];
            simulator::clock().after(1, [&fired, mine] { fired = [NSThread currentThread] == mine; });
            scheduled = true;
            [[NSRunLoop currentRunLoop] addPort:[NSPort port] forMode:NSDefaultRunLoopMode];
            while (!fired)
                [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                         beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
        }
    });
    while (!scheduled)
        std::this_thread::yield();
    simulator::clock().advance(1);
    other.join();
    EXPECT_TRUE(fired);
}

TEST_F(Timing, real_time_passes_by_itself) {
    schedule(0.02, NO);
    bool ran = false;
    simulator::clock().after(0.02, [&] { ran = true; });
    EXPECT_TRUE(runUntil([&] { return ran && counter->fired == 1; }));
    EXPECT_NE(exceptionOf([] { simulator::clock().advance(1); }), "");
}

TEST_F(Timing, queue_runs_blocks_in_order_off_the_main_thread) {
    dispatch_queue_t queue = dispatch_queue_create("test", DISPATCH_QUEUE_SERIAL);
    __block int count = 0;
    __block bool onMainThread = false;
    for (int i = 0; i < 100; ++i)
        dispatch_async(queue, ^{
            onMainThread = onMainThread || [NSThread isMainThread];
            count = count == i ? i + 1 : -1000;
        });
    __block int seen = 0;
    dispatch_sync(queue, ^{
        seen = count;
    });
    EXPECT_EQ(seen, 100);
    EXPECT_FALSE(onMainThread);
}

TEST_F(Timing, main_queue_feeds_the_main_run_loop_from_any_thread) {
    int count = 0;
    int* ran = &count;
    std::thread([ran] {
        dispatch_async(dispatch_get_main_queue(), ^{
            EXPECT_TRUE([NSThread isMainThread]);
            ++*ran;
        });
    }).join();
    dispatch_async(dispatch_get_main_queue(), ^{
        ++*ran;
    });
    EXPECT_EQ(count, 0);
    EXPECT_TRUE(runUntil([&] { return count == 2; }));
}

TEST_F(Timing, delayed_block_follows_moved_time) {
    simulator::clock().useManualTime();
    bool done = false;
    bool* ran = &done;
    dispatch_after(dispatch_time(DISPATCH_TIME_NOW, NSEC_PER_SEC / 2), dispatch_get_main_queue(), ^{
        *ran = true;
    });
    simulator::clock().advance(0.4);
    EXPECT_FALSE(done);
    simulator::clock().advance(0.2);
    EXPECT_TRUE(runUntil([&] { return done; }));
}

TEST_F(Timing, exception_in_an_event_ends_the_application) {
    EXPECT_DEATH(runAsEvent([] { [NSException raise:@"TestException" format:@"the reason"]; }),
                 "uncaught exception TestException: the reason");
}

} // namespace
} // namespace simulator::test
