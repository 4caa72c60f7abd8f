// Time that a test moves by hand.
#include "device/clock.h"

#include "device/threads.h"

#import <Foundation/Foundation.h>

#include <gtest/gtest.h>

@interface TimerCounter : NSObject {
  @public
    int fired;
}
@end
@implementation TimerCounter
- (void)timerFired:(NSTimer*)timer {
    fired += [timer isKindOfClass:[NSTimer class]] ? 1 : 1000;
}
@end

namespace simulator::test {
namespace {

TEST(Clock, moves_the_timers_of_the_platform) {
    @autoreleasepool {
        clock().useManualTime();
        TimerCounter* counter = [[TimerCounter new] autorelease];
        const auto schedule = [&](double seconds, BOOL repeats) {
            return [NSTimer scheduledTimerWithTimeInterval:seconds
                                                    target:counter
                                                  selector:@selector(timerFired:)
                                                  userInfo:nil
                                                   repeats:repeats];
        };
        schedule(0.9, NO);
        NSTimer* repeating = schedule(0.3, YES);
        [schedule(0.1, NO) invalidate];
        clock().after(0.1, [&] { clock().after(0.1, [&] { EXPECT_EQ(counter->fired, 0); }); });
        clock().advance(0.8);
        EXPECT_EQ(counter->fired, 2);
        clock().advance(0.15);
        EXPECT_EQ(counter->fired, 4);
        [repeating invalidate];
        clock().advance(10);
        EXPECT_EQ(counter->fired, 4);
    }
}

TEST(Clock, ends_the_application_when_an_event_raises) {
    EXPECT_DEATH(runAsEvent([] { [NSException raise:@"TestException" format:@"the reason"]; }),
                 "uncaught exception TestException: the reason");
}

} // namespace
} // namespace simulator::test
