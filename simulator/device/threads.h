// Work for the run loops of threads: how stand-ins hand a function to the main thread or to the thread that
// asked.
#pragma once

#include <functional>

#ifdef __OBJC__
@class NSThread;
#endif

namespace simulator {

// Runs `work` on the run loop of the thread, in the order of the calls. An exception that leaves it ends the
// process as it would end an application.
#ifdef __OBJC__
void performOnThread(NSThread* thread, std::function<void()> work);
#endif
void performOnMainThread(std::function<void()> work);

// Makes the calling thread known to the frameworks, once; threads that run their code need it.
void registerThread();

// Runs `work` now and ends the process with a message when an exception leaves it: GNUstep's run loop
// would swallow it, a phone would crash.
void runAsEvent(const std::function<void()>& work);

} // namespace simulator
