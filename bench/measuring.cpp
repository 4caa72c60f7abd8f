#include "measuring.h"

#include <valgrind/callgrind.h>

#include <algorithm>
#include <ctime>
#include <fstream>
#include <limits>
#include <stdexcept>

namespace bench {
namespace {

constexpr int nativeRounds = 5;

nlohmann::json& mutableFigures() {
    static nlohmann::json all = nlohmann::json::object();
    return all;
}

double processorSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

long statusField(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(name + ":")) return std::stol(line.substr(name.size() + 1));
    throw std::runtime_error("the system does not tell " + name);
}

} // namespace

Stretch::Stretch() : m_start(processorSeconds()) { CALLGRIND_START_INSTRUMENTATION; }

void Stretch::stop(const std::string& name) {
    CALLGRIND_STOP_INSTRUMENTATION;
    const double seconds = processorSeconds() - m_start;
    CALLGRIND_DUMP_STATS_AT(name.c_str());
    mutableFigures()[name] = mutableFigures().value(name, 0.0) + seconds;
}

void measure(const std::string& name, const std::function<void()>& work) {
    work();
    if (RUNNING_ON_VALGRIND) {
        Stretch stretch;
        work();
        stretch.stop(name);
        return;
    }
    double quickest = std::numeric_limits<double>::max();
    for (int round = 0; round < nativeRounds; ++round) {
        const double start = processorSeconds();
        work();
        quickest = std::min(quickest, processorSeconds() - start);
    }
    report(name, quickest);
}

void report(const std::string& name, nlohmann::json value) { mutableFigures()[name] = std::move(value); }

const nlohmann::json& figures() { return mutableFigures(); }

long memoryInUse() { return statusField("VmRSS"); }
long peakMemory() { return statusField("VmHWM"); }

void resetPeakMemory() {
    std::ofstream file("/proc/self/clear_refs");
    if (!(file << "5" << std::flush))
        throw std::runtime_error("the system does not reset the peak of memory");
}

} // namespace bench
