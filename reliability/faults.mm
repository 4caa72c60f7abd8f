// The program `faults`: runs each action once to count the calls by which the library leaves its own code,
// then again for every one of them with that call failing, and looks whether anything of the person's is
// lost.
//
//     faults [--every N] [NAME]...
#include "actions.h"
#include "lost_calls.h"

#include "device/exceptions.h"
#include "device/temporary_folder.h"
#include "photolibrary/samples.h"
#include "support/environment.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

namespace reliability {
namespace {

constexpr unsigned secondsPerFault = 30;

// Written by the process that tries and read by the one that waits for it, which goes on behind a crash.
struct Progress {
    std::size_t calls, faults, broken, leftOpen;
    std::size_t next; // the call to lose next, from 1; beyond the last when all is done
    bool isRefused;
    char callName[256];
};

Progress& makeProgress() {
    void* memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::bad_alloc();
    return *new (memory) Progress{
        .calls = 0, .faults = 0, .broken = 0, .leftOpen = 0, .next = 0, .isRefused = false, .callName = {}};
}

void tellBroken(const Action& action, Progress& progress, const std::string& what) {
    ++progress.broken;
    std::printf("%s, call %zu %s%s: %s\n", action.name, progress.next, progress.callName,
                progress.isRefused ? " refused" : "", what.c_str());
}

// What leaves the work, but for its own word that something was not on the screen: then it is not done.
std::optional<std::string> crashOf(const std::function<void()>& work) {
    std::optional<std::string> raised;
    simulator::standardExceptionOf([&] { raised = simulator::foundationExceptionOf(work); });
    return raised;
}

std::optional<std::string> troubleOf(World& world, const Action& action, std::size_t& leftOpen) {
    std::optional<std::string> trouble = crashOf([&] { action.perform(world); });
    world.calmDown();
    stopCounting();
    if (trouble) return trouble;
    if (testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed()) return "it did not come to rest";
    return world.damage(leftOpen);
}

// The calls of the action, and by how much more its screens are retained after it: that a fault must not
// exceed.
struct Ordinary {
    std::vector<Call> calls;
    std::size_t addedOwners = 0;
};

Ordinary runWithoutFault(World& world, const Action& action) {
    Ordinary ordinary;
    world.reset();
    for (int run = 0; run < 2; ++run) { // at first classes are looked up, once for all
        const NSAutoreleasePool* pool = [NSAutoreleasePool new];
        const std::size_t owners = world.ownersOfScreens();
        countCalls();
        const auto failure = simulator::anyExceptionOf([&] { action.perform(world); });
        world.calmDown();
        ordinary.calls = stopCounting();
        if (failure || !action.isDone(world))
            throw std::runtime_error(action.name +
                                     (" fails without a fault: " + failure.value_or("not done")));
        world.reset();
        [pool drain];
        ordinary.addedOwners = world.ownersOfScreens() - owners;
    }
    return ordinary;
}

void tryFault(World& world, const Action& action, const Ordinary& ordinary, Progress& progress) {
    const NSAutoreleasePool* pool = [NSAutoreleasePool new];
    const std::size_t owners = world.ownersOfScreens();
    std::size_t most = owners + ordinary.addedOwners;
    countCalls(progress.next, progress.isRefused ? Loss::refused : Loss::silent);
    std::size_t leftOpen = 0;
    auto trouble = troubleOf(world, action, leftOpen);
    progress.leftOpen += leftOpen > 0 ? 1 : 0;
    if (!trouble && !action.isDone(world)) {
        world.returnToStart();
        trouble = troubleOf(world, action, leftOpen);
        if (!trouble && !action.isDone(world)) trouble = "a second try without the fault does not succeed";
        most += ordinary.addedOwners;
    }
    world.reset();
    [pool drain];
    const std::size_t now = world.ownersOfScreens();
    if (!trouble && (now < owners || now > most))
        trouble = "a screen is retained otherwise than without a fault";
    ++progress.faults;
    if (trouble) tellBroken(action, progress, *trouble);
}

// Each loss of each call from `progress.next` on.
template <typename Try>
void tryAll(const std::vector<Call>& calls, Progress& progress, std::size_t step, const Try& attempt) {
    progress.calls = calls.size();
    for (; progress.next <= calls.size(); progress.next += step) {
        const Call& call = calls[progress.next - 1];
        std::snprintf(progress.callName, sizeof progress.callName, "%s", call.name.c_str());
        for (const bool refused : {false, true}) {
            if (refused && !call.canBeRefused) continue;
            progress.isRefused = refused;
            alarm(secondsPerFault);
            attempt();
        }
    }
}

void tryAction(const Action& action, Progress& progress, std::size_t step) {
    World world(action);
    const Ordinary ordinary = runWithoutFault(world, action);
    tryAll(ordinary.calls, progress, step, [&] { tryFault(world, action, ordinary, progress); });
}

int exitStatusOf(const std::function<void()>& work) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        const auto failure = simulator::anyExceptionOf(work);
        if (failure) std::printf("%s\n", failure->c_str());
        std::fflush(nullptr);
        _exit(failure ? 1 : 0);
    }
    int status = -1;
    return child > 0 && waitpid(child, &status, 0) == child ? status : -1;
}

// Hooks are installed once per process, so every fault of a load has its own; all of them share a device.
void tryLoad(const Action& action, Progress& progress, std::size_t step) {
    const simulator::TemporaryFolder folder;
    const auto prepare = [&] { // a connection to the photo library is not carried over a fork
        addSmallSample(*simulator::PhotoLibrary::open(simulator::Device::create(folder.path())));
    };
    const auto load = [&](std::size_t lost) {
        const simulator::Host host({.bundleIdentifier = action.application,
                                    .device = folder.path(),
                                    .library = simulator::test::libraryFile(),
                                    .beforeLoading = [lost] { countCalls(lost); }});
        simulator::Host::drain();
        return stopCounting();
    };
    int pipeEnds[2];
    if (exitStatusOf(prepare) != 0 || pipe(pipeEnds) != 0) throw std::runtime_error("no device");
    exitStatusOf([&] {
        for (const Call& call : load(0))
            dprintf(pipeEnds[1], "%s\n", call.name.c_str());
    });
    close(pipeEnds[1]);
    FILE* names = fdopen(pipeEnds[0], "r");
    std::vector<Call> calls;
    for (char line[256]; std::fgets(line, sizeof line, names) != nullptr;)
        calls.push_back({.name = std::string(line, std::strcspn(line, "\n"))});
    std::fclose(names);
    if (calls.empty()) throw std::runtime_error(std::string(action.name) + " fails without a fault");
    tryAll(calls, progress, step, [&] {
        const int status = exitStatusOf([&] { load(progress.next); });
        ++progress.faults;
        if (status != 0) tellBroken(action, progress, "ends with status " + std::to_string(status));
    });
}

// All of one action; true when nothing was broken.
bool runs(const Action& action, std::size_t step) {
    Progress& progress = makeProgress();
    progress.next = 1;
    const bool isLoad = action.perform == nullptr;
    for (;;) {
        const std::size_t start = progress.next;
        const int status = exitStatusOf([&] { (isLoad ? tryLoad : tryAction)(action, progress, step); });
        if (status == 0) break;
        tellBroken(action, progress, "ends with status " + std::to_string(status));
        if (progress.calls == 0 || progress.next > progress.calls) break;
        progress.next = std::max(start, progress.next) + step;
    }
    std::printf("%s: %zu calls, %zu faults, %zu broken, %zu left a photo hidden in no album\n", action.name,
                progress.calls, progress.faults, progress.broken, progress.leftOpen);
    return progress.broken == 0 && progress.faults > 0;
}

int runAll(std::size_t step, const std::vector<std::string>& names) {
    std::vector<const Action*> chosen;
    for (const Action& each : actions())
        if (names.empty() || std::ranges::find(names, each.name) != names.end()) chosen.push_back(&each);
    std::size_t next = 0, failed = 0;
    std::size_t running = 0;
    const auto workers = static_cast<std::size_t>(sysconf(_SC_NPROCESSORS_ONLN));
    while (next < chosen.size() || running > 0) {
        if (next < chosen.size() && running < workers) {
            std::fflush(nullptr);
            if (fork() == 0) {
                const bool good = runs(*chosen[next], step);
                std::fflush(nullptr);
                _exit(good ? 0 : 1);
            }
            ++next, ++running;
            continue;
        }
        int status = -1;
        wait(&status);
        --running;
        if (status != 0) ++failed;
    }
    std::printf("%zu actions withstood every fault, %zu did not\n", chosen.size() - failed, failed);
    return failed == 0 && !chosen.empty() ? 0 : 1;
}

} // namespace
} // namespace reliability

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    std::size_t step = 1;
    std::vector<std::string> names;
    for (int i = 1; i < count; ++i) {
        if (std::strcmp(arguments[i], "--every") == 0 && i + 1 < count)
            step = std::strtoul(arguments[++i], nullptr, 10);
        else
            names.emplace_back(arguments[i]);
    }
    if (step == 0) {
        std::fputs("usage: faults [--every N] [NAME]...\n", stderr);
        return 2;
    }
    return reliability::runAll(step, names);
}
