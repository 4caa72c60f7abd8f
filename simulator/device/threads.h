// Work for the run loops of threads: how stand-ins hand a function to the main thread or to the thread that
// asked.
#pragma once

#include <functional>

#ifdef __OBJC__
#import <Foundation/Foundation.h>
#endif

#ifdef __OBJC__
@protocol SimulatorFunction
- (void)perform:(id)argument;
@end
#endif

namespace simulator {

#ifdef __OBJC__
// An autoreleased object whose method perform: runs the function with its argument, as an event.
id<SimulatorFunction> asObject(std::function<void(id argument)> function);

// Runs `work` on the run loop of the thread, in the order of the calls. An exception that leaves it ends the
// process as it would end an application.
void performOnThread(NSThread* thread, std::function<void()> work);
#endif
void performOnMainThread(std::function<void()> work);

// Runs the main run loop until `condition` holds; false after `timeout` seconds. Main thread.
bool runUntil(const std::function<bool()>& condition, double timeout = 5);

// Makes the calling thread known to the frameworks, once; threads that run their code need it.
void registerThread();

// Runs `work` now and ends the process with a message when an exception leaves it: GNUstep's run loop
// would swallow it, a phone would crash.
void runAsEvent(const std::function<void()>& work);

} // namespace simulator
