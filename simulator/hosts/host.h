// A host application: an application of the device with its bundle identifier, into which the library is
// loaded before the application's own code runs. Lives in the test's own process or, as the program `host`,
// in its own.
#pragma once

#include "frameworks/Hooking/InstallationLog.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

// What the simulator knows of one application.
struct Application {
    std::function<void()> start; // the application's own main: makes its objects, shows its first screen
    std::vector<std::string> frameworks; // what it has loaded, see registerFramework(); empty: everything
    bool worksInRootFolder = false;      // its working directory is the device's root
};

// Registers an application by bundle identifier; a second registration replaces the first. Bundle identifiers
// without one are plain applications with nothing of their own.
void registerApplication(std::string_view bundleIdentifier, Application application);

// A verb of the control socket, run on the main thread: {"do": verb, ...} in, answer out. Exceptions of any
// kind become {"error": text}.
using Verb = std::function<nlohmann::json(const nlohmann::json& request)>;
void registerVerb(std::string_view name, Verb verb);
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
    bool runUntil(const std::function<bool()>& condition, double timeout = 5);
    void spin(double seconds);
    // Runs what the main run loop has waiting, without waiting for more.
    void drain();
};

} // namespace simulator
