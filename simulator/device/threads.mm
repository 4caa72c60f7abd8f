#include "device/threads.h"

#include "device/exceptions.h"
#include "device/strings.h"

#import <Foundation/Foundation.h>
#import <GNUstepBase/NSThread+GNUstepBase.h>

#include <cstdio>
#include <cstdlib>

@interface SimulatorFunction : NSObject <SimulatorFunction> {
  @public
    std::function<void(id)> _function;
}
@end

@implementation SimulatorFunction
- (void)perform:(id)argument {
    simulator::runAsEvent([&] { _function(argument); });
}
@end

namespace simulator {

std::optional<std::string> foundationExceptionOf(const std::function<void()>& work) {
    @try {
        work();
    } @catch (NSException* exception) {
        return simulator::text([exception name]) + ": " + simulator::text([exception reason]);
    }
    return std::nullopt;
}

id<SimulatorFunction> asObject(std::function<void(id)> function) {
    auto* made = [[[SimulatorFunction alloc] init] autorelease];
    made->_function = std::move(function);
    return made;
}

void runAsEvent(const std::function<void()>& work) {
    @autoreleasepool {
        const auto exception = anyExceptionOf(work);
        if (!exception) return;
        std::fprintf(stderr, "*** Terminating application due to uncaught exception %s\n",
                     exception->c_str());
        std::abort();
    }
}

void performOnThread(NSThread* thread, std::function<void()> work) {
    registerThread();
    @autoreleasepool {
        // A thread without a run loop would do its own work at once instead of later: this makes the run
        // loop.
        [NSRunLoop currentRunLoop];
        id carried = asObject([work = std::move(work)](id) { work(); });
        [carried performSelector:@selector(perform:)
                        onThread:thread
                      withObject:nil
                   waitUntilDone:NO
                           modes:@[ NSDefaultRunLoopMode ]];
    }
}

void performOnMainThread(std::function<void()> work) {
    performOnThread([NSThread mainThread], std::move(work));
}

bool runUntil(const std::function<bool()>& condition, double timeout) {
    NSDate* end = [[NSDate alloc] initWithTimeIntervalSinceNow:timeout];
    bool holds = condition();
    while (!holds && [end timeIntervalSinceNow] > 0) {
        @autoreleasepool {
            NSDate* soon = [NSDate dateWithTimeIntervalSinceNow:0.01];
            if (![[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:soon])
                [NSThread sleepUntilDate:soon]; // nothing to wait for yet
        }
        holds = condition();
    }
    [end release];
    return holds;
}

void registerThread() { GSRegisterCurrentThread(); }

} // namespace simulator
