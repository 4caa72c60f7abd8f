// Runs the chosen test cases, each in a process forked from this one: hooks are installed once per process,
// and what comes before a test (linking, starting Foundation) is done once for all.
#include <gmock/gmock.h>

#import <Foundation/Foundation.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fnmatch.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr unsigned secondsPerCase = 120;

// The cases that one of the filter's patterns, which colons separate, matches.
std::vector<std::string> chosenCases() {
    std::vector<std::string> chosen;
    const testing::UnitTest& all = *testing::UnitTest::GetInstance();
    for (int suite = 0; suite < all.total_test_suite_count(); ++suite) {
        const testing::TestSuite& cases = *all.GetTestSuite(suite);
        for (int index = 0; index < cases.total_test_count(); ++index) {
            const std::string name = std::string(cases.name()) + "." + cases.GetTestInfo(index)->name();
            std::istringstream patterns(GTEST_FLAG_GET(filter));
            for (std::string pattern; std::getline(patterns, pattern, ':');)
                if (fnmatch(pattern.c_str(), name.c_str(), 0) == 0) {
                    chosen.push_back(name);
                    break;
                }
        }
    }
    return chosen;
}

// All of what a case needs that is the same for every case. It must start no thread and open no run loop,
// since two processes would share them.
void warmUp() {
    const NSAutoreleasePool* pool = [NSAutoreleasePool new];
    (void)[NSBundle mainBundle];
    (void)[NSUserDefaults standardUserDefaults];
    (void)[NSDate date];
    [pool release];
}

std::string describe(int status) {
    if (WIFEXITED(status)) return "exit code " + std::to_string(WEXITSTATUS(status));
    if (WTERMSIG(status) == SIGALRM) return "not done after " + std::to_string(secondsPerCase) + " s";
    return std::string("ended by signal: ") + strsignal(WTERMSIG(status));
}

bool passesInOwnProcess(const std::string& name) {
    const auto start = std::chrono::steady_clock::now();
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        alarm(secondsPerCase);
        GTEST_FLAG_SET(filter, name);
        std::exit(RUN_ALL_TESTS());
    }
    int status = -1;
    if (child < 0 || waitpid(child, &status, 0) != child) {
        std::perror("cannot run a test in a process of its own");
        std::exit(1);
    }
    const auto took = std::chrono::steady_clock::now() - start;
    const bool passed = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    std::printf("[%s] %s (%lld ms)%s%s\n", passed ? "       OK " : "  FAILED  ", name.c_str(),
                static_cast<long long>(std::chrono::duration_cast<std::chrono::milliseconds>(took).count()),
                passed ? "" : ": ", passed ? "" : describe(status).c_str());
    return passed;
}

} // namespace

int main(int count, char** arguments) {
    GTEST_FLAG_SET(brief, true); // a case's failures alone: what passed is told here
    testing::InitGoogleMock(&count, arguments);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();

    const std::vector<std::string> chosen = chosenCases();
    warmUp();
    std::size_t failed = 0;
    for (const std::string& name : chosen)
        if (!passesInOwnProcess(name)) ++failed;
    std::printf("%zu passed, %zu failed\n", chosen.size() - failed, failed);
    return failed == 0 && !chosen.empty() ? 0 : 1;
}
