// The clock of timers and animations: real time, or a time that a test moves by hand so that nothing has to
// be waited for.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace simulator {

class Clock {
  public:
    using TimerIdentifier = std::uint64_t;

    // Seconds since the process started, or since useManualTime() by hand.
    double now() const;

    // From here on time stands still until advance(); meant to be called before the first timer.
    void useManualTime();
    void useRealTime();
    bool isManual() const;

    // Runs `action` after `seconds` on the run loop of the calling thread. Any thread that runs a run loop.
    TimerIdentifier after(double seconds, std::function<void()> action);
    void cancel(TimerIdentifier timer); // one that fired already is no error

    // Moves manual time forward, running what falls due in order of its time. Timers of the calling thread
    // run inside this call, those of other threads on their run loops. Throws std::logic_error on real time.
    void advance(double seconds);

    // How many timers still wait; for tests.
    std::size_t pendingTimers() const;

  private:
    friend Clock& clock();
    Clock();
    ~Clock() = delete;

    struct State;
    State* m_state; // lives as long as the process
};

Clock& clock();

} // namespace simulator
