#include "frameworks/Hooking/HookCalls.h"

#include "device/conditions.h"
#include "frameworks/Hooking/Trampoline.h"

#include <atomic>
#include <chrono>
#include <deque>
#include <mutex>

namespace simulator {
namespace {

double now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Calls come from any thread.
struct Counter {
    std::string method;
    std::atomic<std::uint64_t> count = 0;
    std::atomic<double> lastCall = 0;
};

// Guards the list, not the counters, which stay where they are and until the process ends.
std::mutex lock;
std::deque<Counter>& counters() {
    static auto& all = *new std::deque<Counter>;
    return all;
}

Counter& addCounter(std::string method) {
    const std::lock_guard guard(lock);
    Counter& counter = counters().emplace_back();
    counter.method = std::move(method);
    return counter;
}

} // namespace

IMP notingCalls(Class cls, SEL selector, IMP implementation) {
    if (!currentConditions()->hooking.callsNoted) return implementation;
    const char* kind = class_isMetaClass(cls) ? "+" : "-";
    Counter& counter =
        addCounter(std::string(kind) + "[" + class_getName(cls) + " " + sel_getName(selector) + "]");
    return trampoline([&counter, implementation] {
        ++counter.count;
        counter.lastCall = now();
        return implementation;
    });
}

std::vector<HookCalls> hookCalls() {
    std::vector<HookCalls> calls;
    const std::lock_guard guard(lock);
    for (const Counter& counter : counters())
        if (counter.count > 0) calls.push_back({counter.method, counter.count, counter.lastCall});
    return calls;
}

} // namespace simulator
