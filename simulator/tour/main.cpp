// The tour: the library at work on a simulated device, step by step, for a person to read. It ends by itself,
// with a status other than 0 when anything went wrong.
#include "device/temporary_folder.h"
#include "tour/pictures.h"
#include "tour/scenarios.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <optional>

namespace {

using namespace simulator::tour;
using simulator::Programs, simulator::TemporaryFolder;

constexpr const char* usage =
    "usage: tour --library FILE --host PROGRAM --device-files FOLDER [--emulator COMMAND] [OPTION]\n"
    "Walks the library FILE over a device whose applications PROGRAM runs, through COMMAND when given. "
    "FOLDER holds\n"
    "what the package installs. Options:\n"
    "  --scenario NUMBER  plays only this one\n"
    "  --story FILE       writes an HTML page with pictures of what happened\n"
    "  --pictures FOLDER  only draws the documentation's pictures\n";

struct Options {
    Programs programs;
    std::optional<std::size_t> scenario; // counted from 1
    std::filesystem::path story;         // none: empty
    std::filesystem::path pictures;      // none: empty
};

std::optional<Options> parse(int count, char** arguments) {
    Options options;
    for (int index = 1; index + 1 < count; index += 2) {
        const std::string name = arguments[index];
        const std::string value = arguments[index + 1];
        if (options.programs.take(name, value)) continue;
        if (name == "--story") {
            options.story = value;
        } else if (name == "--pictures") {
            options.pictures = value;
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

void run(const Scenario& scenario, const Programs& programs, StoryChapter* chapter) {
    const TemporaryFolder folder;
    Stage stage(programs, folder.path(), chapter);
    try {
        scenario.play(stage);
    } catch (const std::exception& error) {
        stage.tellFailure(error.what());
        throw;
    }
}

bool reportsFailure(const std::function<void()>& action) {
    try {
        action();
        return false;
    } catch (const std::exception& error) {
        std::fflush(stdout);
        std::fprintf(stderr, "tour: %s\n", error.what());
        return true;
    }
}

bool playAll(const Options& options, std::vector<StoryChapter>& chapters) {
    const bool tells = !options.story.empty();
    const std::size_t first = options.scenario ? *options.scenario - 1 : 0;
    const std::size_t end = options.scenario ? *options.scenario : std::size(scenarios);
    for (std::size_t index = first; index < end; ++index)
        chapters.push_back({.title = scenarios[index].title});
    return !reportsFailure([&] {
        for (std::size_t index = first; index < end; ++index) {
            std::printf("[%zu/%zu] %s\n", index + 1, std::size(scenarios), scenarios[index].title);
            run(scenarios[index], options.programs, tells ? &chapters[index - first] : nullptr);
        }
    });
}

bool writeStory(const Options& options, const std::vector<StoryChapter>& chapters) {
    const char* library =
        options.programs.emulator.empty() ? "The Linux build" : "The phone's own library, under emulation,";
    std::error_code ignored;
    std::filesystem::create_directories(options.story.parent_path(), ignored);
    std::ofstream file(options.story);
    file << storyAsHtml(chapters, library);
    file.close();
    if (!file) std::fprintf(stderr, "tour: cannot write %s\n", options.story.c_str());
    return static_cast<bool>(file);
}

} // namespace

int main(int count, char** arguments) {
    const auto options = parse(count, arguments);
    if (!options) {
        std::fputs(usage, stderr);
        return 2;
    }
    if (!options->pictures.empty())
        return reportsFailure([&] { takePictures(options->programs, options->pictures); }) ? 1 : 0;
    std::vector<StoryChapter> chapters;
    const bool happened = playAll(*options, chapters);
    if (!options->story.empty() && !writeStory(*options, chapters)) return 1;
    if (!happened) return 1;
    std::printf("Everything happened as it should.\n");
    return 0;
}
