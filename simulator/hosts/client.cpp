#include "hosts/client.h"

#include "hosts/control_socket.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <stdexcept>
#include <thread>
#include <utility>

namespace simulator {
namespace {

std::vector<std::string> commandLine(const HostProcessOptions& options) {
    std::vector<std::string> command = options.emulator;
    command.insert(command.end(), {options.program.string(), "--device", options.device.string(), "--bundle",
                                   options.bundleIdentifier});
    if (options.library) command.insert(command.end(), {"--library", options.library->string()});
    return command;
}

// In the child, between fork and exec: nothing here may allocate.
[[noreturn]] void become(char* const* arguments, pid_t parent) {
    prctl(PR_SET_PDEATHSIG, SIGKILL); // no host outlives the one who started it
    if (getppid() == parent) execvp(arguments[0], arguments);
    _exit(127);
}

std::string describeEnd(int status) {
    if (WIFSIGNALED(status)) return "ended by signal " + std::to_string(WTERMSIG(status));
    return "ended with status " + std::to_string(WEXITSTATUS(status));
}

} // namespace

template <class Error> void HostProcess::fail(const std::string& what) const {
    throw Error(m_options.bundleIdentifier + ": " + what);
}

HostProcess::HostProcess(HostProcessOptions options) : m_options(std::move(options)) {
    std::error_code ignored;
    std::filesystem::remove(controlSocketOf(m_options.device, m_options.bundleIdentifier), ignored);
    start();
    try {
        connect();
        call("ready");
    } catch (...) {
        kill();
        throw;
    }
}

HostProcess::~HostProcess() { kill(); }

HostProcess::HostProcess(HostProcess&& other) noexcept
    : m_options(std::move(other.m_options)), m_process(std::exchange(other.m_process, -1)),
      m_endStatus(other.m_endStatus), m_socket(std::move(other.m_socket)),
      m_received(std::move(other.m_received)) {}

void HostProcess::start() {
    std::vector<std::string> command = commandLine(m_options);
    std::vector<char*> arguments(command.size() + 1); // ends with a null pointer
    std::ranges::transform(command, arguments.begin(), [](std::string& argument) { return argument.data(); });
    const pid_t parent = getpid();
    m_process = fork();
    if (m_process < 0) fail("cannot start a process");
    if (m_process == 0) become(arguments.data(), parent);
}

void HostProcess::connect() {
    const auto path = controlSocketOf(m_options.device, m_options.bundleIdentifier);
    const bool isOver = waitUntil([&] {
        m_socket = connectTo(path);
        return m_socket || !isRunning();
    });
    if (!isOver) fail("not ready in time");
    if (!m_socket) fail(describeEnd(m_endStatus));
    const auto seconds = static_cast<time_t>(std::ceil(m_options.timeout));
    const timeval timeout{seconds, 0};
    setsockopt(m_socket.number(), SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout);
}

nlohmann::json HostProcess::call(const char* verb) { return call(nlohmann::json{{"do", verb}}); }

nlohmann::json HostProcess::call(const nlohmann::json& request) {
    const auto line =
        sendAll(m_socket, request.dump() + "\n") ? receiveLine(m_socket, m_received) : std::nullopt;
    if (!line) fail<HostLost>("no answer to " + request.dump());
    nlohmann::json answer = nlohmann::json::parse(*line);
    if (answer.is_object() && answer.contains("error")) fail(answer["error"].get<std::string>());
    return answer;
}

void HostProcess::stop() {
    if (m_process < 0) return;
    call("quit");
    const bool ended = waitUntil([this] { return !isRunning(); });
    kill();
    if (!ended) fail("did not quit");
}

void HostProcess::kill() {
    m_socket = {};
    if (m_process < 0) return;
    ::kill(m_process, SIGKILL);
    waitpid(std::exchange(m_process, -1), nullptr, 0);
}

bool HostProcess::isRunning() {
    if (m_process >= 0 && waitpid(m_process, &m_endStatus, WNOHANG) == m_process) m_process = -1;
    return m_process >= 0;
}

bool HostProcess::waitUntil(const std::function<bool()>& condition) const {
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(m_options.timeout);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

} // namespace simulator
