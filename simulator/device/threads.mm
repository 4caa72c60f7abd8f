#include "device/threads.h"

#import <Foundation/Foundation.h>
#import <GNUstepBase/NSThread+GNUstepBase.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>

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
namespace {

[[noreturn]] void endWith(const char* kind, const char* text) {
    std::fprintf(stderr, "*** Terminating application due to uncaught exception '%s', reason: '%s'\n", kind,
                 text);
    std::fflush(stderr);
    std::abort();
}

void endWithCurrentException() {
    try {
        throw;
    } catch (const std::exception& error) {
        endWith("C++ exception", error.what());
    }
}

} // namespace

void runAsEvent(const std::function<void()>& work) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    @try {
        work();
    } @catch (NSException* exception) {
        endWith([[exception name] UTF8String], [[exception reason] UTF8String]);
    } @catch (...) {
        endWithCurrentException();
    }
    [pool release];
}

void performOnThread(NSThread* thread, std::function<void()> work) {
    registerThread();
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
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
