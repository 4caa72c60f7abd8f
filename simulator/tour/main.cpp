// The tour: the library at work on a simulated device, step by step, for a person to read. It ends by itself,
// with a status other than 0 when anything went wrong.
#include "tour/scenarios.h"

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <sstream>

#include <unistd.h>

namespace {

using namespace simulator::tour;

constexpr const char* usage =
    "usage: tour --library FILE --host PROGRAM --device-files FOLDER [--emulator COMMAND] [--scenario "
    "NUMBER]\n"
    "Walks the library FILE over a device whose applications PROGRAM runs, through COMMAND when given. "
    "FOLDER holds\n"
    "what the package installs.\n";

struct Options {
    Programs programs;
    std::optional<std::size_t> scenario; // counted from 1
};

std::optional<Options> parse(int count, char** arguments) {
    Options options;
    for (int index = 1; index + 1 < count; index += 2) {
        const std::string name = arguments[index];
        const std::string value = arguments[index + 1];
        if (name == "--library") {
            options.programs.library = std::filesystem::absolute(value);
        } else if (name == "--host") {
            options.programs.host = std::filesystem::absolute(value);
        } else if (name == "--device-files") {
            options.programs.deviceFiles = std::filesystem::absolute(value);
        } else if (name == "--emulator") {
            std::istringstream words(value);
            options.programs.emulator = {std::istream_iterator<std::string>(words), {}};
        } else if (name == "--scenario") {
            options.scenario = std::strtoul(value.c_str(), nullptr, 10);
        } else {
            return std::nullopt;
        }
    }
    const bool isComplete =
        count % 2 == 1 && !options.programs.library.empty() && !options.programs.host.empty();
    const bool scenarioExists =
        !options.scenario || (*options.scenario >= 1 && *options.scenario <= std::size(scenarios));
    return isComplete && scenarioExists ? std::optional(options) : std::nullopt;
}

std::filesystem::path freshFolder() {
    std::string folder = (std::filesystem::temp_directory_path() / "rollkeeper-tour-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) throw TourFailure("no folder for a device");
    return folder;
}

void run(const Scenario& scenario, const Programs& programs) {
    const std::filesystem::path folder = freshFolder();
    {
        Stage stage(programs, folder);
        scenario.play(stage);
    }
    std::filesystem::remove_all(folder);
}

} // namespace

int main(int count, char** arguments) {
    const auto options = parse(count, arguments);
    if (!options) {
        std::fputs(usage, stderr);
        return 2;
    }
    try {
        for (std::size_t index = 0; index < std::size(scenarios); ++index) {
            if (options->scenario && *options->scenario != index + 1) continue;
            std::printf("[%zu/%zu] %s\n", index + 1, std::size(scenarios), scenarios[index].title);
            run(scenarios[index], options->programs);
        }
    } catch (const std::exception& error) {
        std::fflush(stdout);
        std::fprintf(stderr, "tour: %s\n", error.what());
        return 1;
    }
    std::printf("Everything happened as it should.\n");
    return 0;
}
