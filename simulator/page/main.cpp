// The program `page`: a device with its applications, and a page on this machine that shows it and acts on
// it. SIGINT, SIGTERM and SIGHUP end it, with all that belongs to it.
#include "device/temporary_folder.h"
#include "page/server.h"

#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

using namespace simulator::page;
using simulator::Programs;

constexpr const char* usage = "usage: page --library FILE --host PROGRAM --device-files FOLDER --page-files "
                              "FOLDER [--emulator COMMAND] "
                              "[--port NUMBER]\n"
                              "Serves a device on 127.0.0.1 whose applications PROGRAM runs, through COMMAND "
                              "when given, with the library FILE.\n";

struct Options {
    Programs programs;
    std::filesystem::path pageFiles;
    int port = 0; // any
};

std::optional<Options> parse(int count, char** arguments) {
    Options options;
    for (int index = 1; index + 1 < count; index += 2) {
        const std::string name = arguments[index];
        const std::string value = arguments[index + 1];
        if (options.programs.take(name, value)) continue;
        if (name == "--page-files") {
            options.pageFiles = value;
        } else if (name == "--port") {
            char* end = nullptr;
            const long port = std::strtol(value.c_str(), &end, 10);
            if (value.empty() || *end != 0 || port < 1 || port > 65535) return std::nullopt;
            options.port = static_cast<int>(port);
        } else {
            return std::nullopt;
        }
    }
    const Programs& programs = options.programs;
    const bool isComplete = count % 2 == 1 && !programs.library.empty() && !programs.host.empty() &&
                            !programs.deviceFiles.empty() && !options.pageFiles.empty();
    return isComplete ? std::optional(options) : std::nullopt;
}

sigset_t endSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int each : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&signals, each);
    return signals;
}

void run(const Options& options) {
    const sigset_t ends = endSignals();
    const simulator::TemporaryFolder folder;
    Phone phone(options.programs, folder.path());
    Desk desk(phone);
    Server server(desk, options.pageFiles);
    const int port = server.bind(options.port);
    std::thread serving([&] { server.serve(); });
    std::thread waiting([&] {
        int signal = 0;
        sigwait(&ends, &signal);
        desk.stop();
    });
    std::printf("The device is at http://127.0.0.1:%d/ until Ctrl-C.\n", port);
    std::fflush(stdout);
    desk.run();
    server.stop();
    serving.join();
    waiting.join();
}

} // namespace

int main(int count, char** arguments) {
    const auto options = parse(count, arguments);
    if (!options) {
        std::fputs(usage, stderr);
        return 2;
    }
    // Before there are threads, which have the same signals blocked then.
    const sigset_t ends = endSignals();
    pthread_sigmask(SIG_BLOCK, &ends, nullptr);
    try {
        run(*options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "page: %s\n", error.what());
        return 1;
    }
    return 0;
}
