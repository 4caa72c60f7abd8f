#include "device/message_centres.h"

#include "device/local_sockets.h"
#include "device/process.h"
#include "device/root.h"

#include <sys/socket.h>

#include <cerrno>
#include <fstream>
#include <stdexcept>
#include <thread>

namespace simulator {
namespace {

std::filesystem::path socketOf(std::string_view centre) {
    const std::filesystem::path device = mountedDevice();
    if (device.empty()) return {};
    return device / "run" / "centres" / fileNameFor(centre);
}

// A file beside the socket says that sandboxed processes may look the centre up.
std::filesystem::path unlockedMarkOf(const std::filesystem::path& socket) {
    return socket.string() + ".unlocked";
}

} // namespace

struct MessageServer::State {
    std::filesystem::path path;
    Descriptor socket;
    Handler handler;
    std::thread thread;

    void serve() const {
        for (;;) {
            const Descriptor sender(accept4(socket.number(), nullptr, nullptr, SOCK_CLOEXEC));
            if (!sender && errno != EINTR && errno != ECONNABORTED) return;
            if (sender) handler(receiveUntilClosed(sender));
        }
    }
};

MessageServer::MessageServer(std::string_view centre, bool unlocked, Handler handler)
    : m_state(std::make_unique<State>()) {
    m_state->path = socketOf(centre);
    if (m_state->path.empty())
        throw std::runtime_error("message centre " + std::string(centre) + ": no device is mounted");
    std::filesystem::create_directories(m_state->path.parent_path());
    std::filesystem::remove(unlockedMarkOf(m_state->path));
    m_state->handler = std::move(handler);
    m_state->socket = listenOn(m_state->path, SocketKind::stream);
    if (unlocked) unlock();
    m_state->thread = std::thread([state = m_state.get()] { state->serve(); });
}

MessageServer::~MessageServer() {
    shutdown(m_state->socket.number(), SHUT_RDWR);
    m_state->thread.join();
    std::error_code ignored;
    std::filesystem::remove(m_state->path, ignored);
    std::filesystem::remove(unlockedMarkOf(m_state->path), ignored);
}

void MessageServer::unlock() { std::ofstream(unlockedMarkOf(m_state->path)).put('\n'); }

bool sendToCentre(std::string_view centre, bool unlocked, std::string_view message) {
    const std::filesystem::path path = socketOf(centre);
    if (path.empty()) return false;
    if (hostIsSandboxed() && !(unlocked && std::filesystem::exists(unlockedMarkOf(path)))) return false;
    const Descriptor server = connectTo(path, SocketKind::stream);
    return server && sendAll(server, message);
}

} // namespace simulator
