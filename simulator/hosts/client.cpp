#include "hosts/client.h"

#include "hosts/control_socket.h"

#include "device/local_sockets.h"

#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <stdexcept>
#include <thread>
#include <utility>

namespace simulator {
namespace {

using Time = std::chrono::steady_clock::time_point;

Time timeIn(double seconds) {
    return std::chrono::steady_clock::now() + std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                                                  std::chrono::duration<double>(seconds));
}

int millisecondsUntil(Time end) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
}

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

} // namespace

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
      m_socket(std::exchange(other.m_socket, -1)), m_received(std::move(other.m_received)) {}

void HostProcess::start() {
    std::vector<std::string> command = commandLine(m_options);
    std::vector<char*> arguments(command.size() + 1); // ends with a null pointer
    std::ranges::transform(command, arguments.begin(), [](std::string& argument) { return argument.data(); });
    const pid_t parent = getpid();
    m_process = fork();
    if (m_process < 0) throw std::runtime_error(m_options.bundleIdentifier + ": cannot start a process");
    if (m_process == 0) become(arguments.data(), parent);
}

void HostProcess::connect() {
    const Time end = timeIn(m_options.timeout);
    while (std::chrono::steady_clock::now() < end) {
        Descriptor socket =
            connectTo(controlSocketOf(m_options.device, m_options.bundleIdentifier), SocketKind::stream);
        if (socket) {
            m_socket = socket.release();
            return;
        }
        int status = 0;
        if (waitpid(m_process, &status, WNOHANG) == m_process) {
            m_process = -1;
            throw std::runtime_error(describeEnd(status));
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    throw std::runtime_error(m_options.bundleIdentifier + ": not ready in time");
}

std::string HostProcess::describeEnd(int status) const {
    if (WIFSIGNALED(status))
        return m_options.bundleIdentifier + ": ended by signal " + std::to_string(WTERMSIG(status)) + " (" +
               strsignal(WTERMSIG(status)) + ")";
    return m_options.bundleIdentifier + ": ended with status " + std::to_string(WEXITSTATUS(status));
}

nlohmann::json HostProcess::call(const nlohmann::json& request) {
    const std::string line = request.dump() + "\n";
    if (m_socket < 0 ||
        send(m_socket, line.data(), line.size(), MSG_NOSIGNAL) != static_cast<ssize_t>(line.size()))
        throw std::runtime_error(m_options.bundleIdentifier + ": does not take " + request.dump());
    nlohmann::json answer = nlohmann::json::parse(readLine());
    if (answer.is_object() && answer.contains("error"))
        throw std::runtime_error(m_options.bundleIdentifier + ": " + answer["error"].get<std::string>());
    return answer;
}

std::string HostProcess::readLine() {
    const Time end = timeIn(m_options.timeout);
    char buffer[65536];
    for (;;) {
        if (const std::size_t newline = m_received.find('\n'); newline != std::string::npos) {
            std::string line = m_received.substr(0, newline);
            m_received.erase(0, newline + 1);
            return line;
        }
        pollfd waiting{m_socket, POLLIN, 0};
        if (poll(&waiting, 1, millisecondsUntil(end)) == 0)
            throw std::runtime_error(m_options.bundleIdentifier + ": no answer in time");
        const ssize_t size = recv(m_socket, buffer, sizeof buffer, 0);
        if (size <= 0) throw std::runtime_error(m_options.bundleIdentifier + ": ended without an answer");
        m_received.append(buffer, static_cast<std::size_t>(size));
    }
}

void HostProcess::stop() {
    if (m_process < 0) return;
    call("quit");
    const Time end = timeIn(m_options.timeout);
    while (isRunning() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    const bool ended = m_process < 0;
    kill();
    if (!ended) throw std::runtime_error(m_options.bundleIdentifier + ": did not quit");
}

void HostProcess::kill() {
    if (m_socket >= 0) close(std::exchange(m_socket, -1));
    if (m_process < 0) return;
    ::kill(m_process, SIGKILL);
    waitpid(std::exchange(m_process, -1), nullptr, 0);
}

bool HostProcess::isRunning() {
    if (m_process < 0) return false;
    int status = 0;
    if (waitpid(m_process, &status, WNOHANG) != m_process) return true;
    m_process = -1;
    return false;
}

} // namespace simulator
