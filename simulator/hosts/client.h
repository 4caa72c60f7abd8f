// Starts host applications as processes of their own and speaks to them over their control sockets.
#pragma once

#include "device/local_sockets.h"

#include <nlohmann/json_fwd.hpp>

#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace simulator {

struct HostProcessOptions {
    std::filesystem::path program; // the program `host`
    std::string bundleIdentifier;
    std::filesystem::path device;
    std::optional<std::filesystem::path> library;
    std::vector<std::string> emulator =
        {};              // command that runs the program, e.g. qemu-aarch64-static -L SYSROOT
    double timeout = 20; // seconds to get ready, and for each call
};

// The host does not answer, or has ended by itself: there is no more talking to it.
struct HostLost : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A running host; it ends with this object at the latest. Every failure is a std::runtime_error that names
// the host.
class HostProcess {
  public:
    explicit HostProcess(HostProcessOptions options);
    ~HostProcess();
    HostProcess(HostProcess&& other) noexcept;
    HostProcess& operator=(HostProcess&&) = delete;

    // Sends {"do": verb, ...}, waits for the answer; throws what the host reports as {"error": text}, and
    // HostLost when none comes.
    nlohmann::json call(const nlohmann::json& request);
    nlohmann::json call(const char* verb);

    void stop(); // asks it to quit and waits
    void kill(); // ends it at once
    bool isRunning();
    int processIdentifier() const { return m_process; }

  private:
    void start();
    void connect();
    template <class Error = std::runtime_error> [[noreturn]] void fail(const std::string& what) const;
    // Looks every few milliseconds; false after the time-out.
    bool waitUntil(const std::function<bool()>& condition) const;

    HostProcessOptions m_options;
    int m_process = -1;
    int m_endStatus = 0; // of waitpid, once it is not running
    Descriptor m_socket;
    std::string m_received;
};

} // namespace simulator
