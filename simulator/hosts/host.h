// A host application: an application of the device with its bundle identifier, into which the library is
// loaded before the application's own code runs. Lives in the test's own process or, as the program `host`,
// in its own.
#pragma once

#include "device/process.h"
#include "frameworks/Hooking/InstallationLog.h"

#include <nlohmann/json.hpp>

#include <concepts>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace simulator {

// What the simulator knows of one application.
struct Application {
    std::function<void()> start; // the application's own main: makes its objects, shows its first screen
    std::vector<std::string> frameworks; // what it has loaded, see registerFramework(); empty: everything
    bool worksInRootFolder = false;      // its working directory is the device's root
    std::set<std::string, std::less<>> usageDescriptions = {photoUsage}; // in its Info.plist
};

// Registers an application by bundle identifier; a second registration replaces the first. Bundle identifiers
// without one are plain applications with nothing of their own.
void registerApplication(std::string_view bundleIdentifier, Application application);
Application applicationFor(std::string_view bundleIdentifier);

// A verb of the control socket, run on the main thread: {"do": verb, ...} in, answer out. Exceptions of any
// kind become {"error": text}.
using Verb = std::function<nlohmann::json(const nlohmann::json& request)>;
void registerVerb(std::string_view name, Verb verb);
// What it does may do without the request, and without an answer: then it answers {}.
template <typename Action>
    requires(!std::convertible_to<Action, Verb>)
void registerVerb(std::string_view name, Action action) {
    registerVerb(name, [action](const nlohmann::json& request) -> nlohmann::json {
        if constexpr (std::invocable<Action, const nlohmann::json&>)
            action(request);
        else if constexpr (std::is_void_v<std::invoke_result_t<Action>>)
            action();
        else
            return action();
        return nlohmann::json::object();
    });
}
nlohmann::json performVerb(const nlohmann::json& request);

struct HostOptions {
    std::string bundleIdentifier;
    std::filesystem::path device;                 // made by Device::create
    std::optional<std::filesystem::path> library; // none: the application runs unchanged
    // Runs after the device is mounted and before the library loads.
    std::function<void()> beforeLoading = {};
};

// One per process: hooks cannot be taken back. Main thread.
class Host {
  public:
    // Mounts the device, applies its conditions, loads the library, starts the application. Throws
    // std::runtime_error when the library cannot be loaded.
    explicit Host(const HostOptions& options);
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    const std::vector<Installation>& installations() const; // what the library installed, in order

    // Runs the main run loop until `condition` holds; false after `timeout` seconds.
    static bool runUntil(const std::function<bool()>& condition, double timeout = 5);
    static void spin(double seconds);
    // Runs what the main run loop has waiting, without waiting for more.
    static void drain();
};

} // namespace simulator
