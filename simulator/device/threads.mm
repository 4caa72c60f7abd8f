#include "device/threads.h"

#include "device/exceptions.h"

#import <Foundation/Foundation.h>
#import <GNUstepBase/NSThread+GNUstepBase.h>

#include <cstdio>
#include <cstdlib>

// A function as an object, so that a run loop can carry it.
@interface SimulatorWork : NSObject {
    std::function<void()> _work;
}
- (instancetype)initWithWork:(std::function<void()>)work;
- (void)run;
@end

@implementation SimulatorWork
- (instancetype)initWithWork:(std::function<void()>)work {
    self = [super init];
    if (self != nil) _work = std::move(work);
    return self;
}

- (void)run {
    simulator::runAsEvent(_work);
}
@end

namespace simulator {
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
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    // A thread without a run loop would do its own work at once instead of later: this makes the run loop.
    [NSRunLoop currentRunLoop];
    SimulatorWork* carried = [[[SimulatorWork alloc] initWithWork:std::move(work)] autorelease];
    [carried performSelector:@selector(run)
                    onThread:thread
                  withObject:nil
               waitUntilDone:NO
                       modes:[NSArray arrayWithObject:NSDefaultRunLoopMode]];
    [pool release];
}

void performOnMainThread(std::function<void()> work) {
    performOnThread([NSThread mainThread], std::move(work));
}

void registerThread() { GSRegisterCurrentThread(); }

} // namespace simulator
