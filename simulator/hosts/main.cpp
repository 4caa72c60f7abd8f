// The program `host`: one application of a device as a process.
#include "device/device.h"
#include "hosts/control_socket.h"
#include "hosts/host.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <string>
#include <string_view>

namespace {

constexpr const char* usage = "usage: host --device FOLDER --bundle IDENTIFIER [--library FILE]\n"
                              "Runs one application of a device; it answers on FOLDER/run/IDENTIFIER.sock.\n";

// Empty when the arguments are wrong.
std::map<std::string, std::string, std::less<>> parse(int count, char** arguments) {
    std::map<std::string, std::string, std::less<>> options;
    for (int i = 1; i + 1 < count; i += 2)
        options[arguments[i]] = arguments[i + 1];
    for (const auto& [name, value] : options)
        if (name != "--device" && name != "--bundle" && name != "--library") return {};
    const bool complete = count % 2 == 1 && options.contains("--device") && options.contains("--bundle");
    return complete ? options : decltype(options){};
}

void run(const std::map<std::string, std::string, std::less<>>& options) {
    simulator::HostOptions wanted{.bundleIdentifier = options.at("--bundle"),
                                  .device = std::filesystem::absolute(options.at("--device")),
                                  .library = {}};
    if (const auto library = options.find("--library"); library != options.end())
        wanted.library = library->second;

    bool quits = false;
    simulator::registerVerb("quit", [&](const nlohmann::json&) {
        quits = true;
        return nlohmann::json::object();
    });
    simulator::Host host(wanted);
    simulator::serveControlSocket(simulator::controlSocketOf(wanted.device, wanted.bundleIdentifier));
    while (!quits)
        host.runUntil([&] { return quits; }, 3600);
    host.drain(); // the answer to the last request goes out
    std::filesystem::remove(simulator::controlSocketOf(wanted.device, wanted.bundleIdentifier));
}

} // namespace

int main(int count, char** arguments) {
    const auto options = parse(count, arguments);
    if (options.empty()) {
        std::fputs(usage, stderr);
        return 2;
    }
    try {
        run(options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "host: %s\n", error.what());
        return 1;
    }
    // Applications end without taking themselves down: threads of theirs may still be running.
    std::fflush(nullptr);
    std::_Exit(0);
}
