// Measures stretches of a scenario: processor time natively, instructions when the process runs under
// valgrind's callgrind (with --instr-atstart=no), which writes one profile for each stretch, named by it.
#pragma once

#include <nlohmann/json.hpp>

#include <functional>
#include <string>

namespace bench {

// One stretch from construction to stop().
class Stretch {
  public:
    Stretch();
    // Adds what was measured to the figure `name`.
    void stop(const std::string& name);

  private:
    double m_start;
};

// Runs `work` once unmeasured, so that caches are filled, and then measured: natively several times, of which
// the quickest counts; once under callgrind.
void measure(const std::string& name, const std::function<void()>& work);

// A figure that no clock gives.
void report(const std::string& name, nlohmann::json value);

// Everything measured and reported: {"name": seconds or value}.
const nlohmann::json& figures();

// What the process holds in memory now, and the most that it held since resetPeakMemory(); KiB.
long memoryInUse();
long peakMemory();
void resetPeakMemory();

} // namespace bench
