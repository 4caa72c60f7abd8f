// The clock of timers and animations: real time, or a time that a test moves by hand so that nothing has to
// be waited for.
#pragma once

#include <cstddef>
#include <functional>

namespace simulator {

class Clock {
  public:
    // From here on time stands still until advance(); meant to be called before the first timer.
    void useManualTime();

    // Seconds since some moment in the past.
    double now() const;

    // Runs `action` after `seconds` on the run loop of the calling thread. Any thread that runs a run loop.
    void after(double seconds, std::function<void()> action);
    // The same on the main thread's run loop. Any thread.
    void afterOnMainThread(double seconds, std::function<void()> action);

    // Moves manual time forward, running what falls due in order of its time. Timers of the calling thread
    // run inside this call, those of other threads on their run loops. Throws std::logic_error on real time.
    void advance(double seconds);

    // How many timers of manual time still wait; for tests.
    std::size_t pendingTimers() const;

  private:
    friend Clock& clock();
    Clock() = default;
};

Clock& clock();

} // namespace simulator
