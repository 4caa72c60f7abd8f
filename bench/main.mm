// The program `scenario`: runs one measured scenario and prints its figures as JSON.
#include "measuring.h"
#include "scenarios/scenarios.h"

#import <Foundation/Foundation.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>

namespace bench {

const std::string& Options::text(const std::string& name) const {
    const auto found = values.find(name);
    if (found == values.end()) throw std::invalid_argument("the option --" + name + " is missing");
    return found->second;
}

std::size_t Options::number(const std::string& name) const {
    try {
        return std::stoul(text(name));
    } catch (const std::logic_error&) {
        throw std::invalid_argument("the option --" + name + " is missing or no number");
    }
}

std::optional<std::filesystem::path> Options::library() const {
    const auto found = values.find("library");
    return found == values.end() ? std::nullopt : std::optional<std::filesystem::path>(found->second);
}

namespace {

struct Scenario {
    const char* name;
    void (*run)(const Options&);
};

constexpr Scenario scenarios[] = {
    {"prepare", prepareDevice},
    {"load", measureLoad},
    {"pass-through", measurePassThrough},
    {"album-cell", measureAlbumCell},
    {"album-cell-growth", measureAlbumCellGrowth},
    {"collections", measureCollections},
    {"literal-collections", measureLiteralCollections},
    {"album-fetch", measureAlbumFetch},
};

Options parse(int count, char** arguments) {
    Options options;
    for (int i = 2; i < count; i += 2) {
        const std::string name = arguments[i];
        if (!name.starts_with("--") || i + 1 == count)
            throw std::invalid_argument("usage: scenario NAME [--OPTION VALUE]...");
        options.values[name.substr(2)] = arguments[i + 1];
    }
    return options;
}

void run(int count, char** arguments) {
    const std::string name = count < 2 ? "" : arguments[1];
    for (const Scenario& scenario : scenarios)
        if (name == scenario.name) return scenario.run(parse(count, arguments));
    throw std::invalid_argument("there is no scenario \"" + name + "\"");
}

} // namespace
} // namespace bench

int main(int count, char** arguments) {
    try {
        @autoreleasepool {
            bench::run(count, arguments);
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "scenario: %s\n", error.what());
        return 1;
    }
    std::printf("%s\n", bench::figures().dump().c_str());
    // As applications end: without taking themselves down.
    std::fflush(nullptr);
    std::_Exit(0);
}
