#include "device/local_sockets.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <system_error>
#include <utility>

namespace simulator {
namespace {

// The address of a socket is limited to about a hundred letters; the folder's descriptor makes every path
// short.
template <class Call> bool at(const std::filesystem::path& path, const Descriptor& socket, Call call) {
    const Descriptor folder(open(path.parent_path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const std::string text =
        "/proc/self/fd/" + std::to_string(folder.number()) + "/" + path.filename().string();
    text.copy(address.sun_path, sizeof address.sun_path - 1);
    return call(socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

Descriptor makeSocket() { return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)); }

// Waits for bytes and appends them; false when no more will come.
bool receive(const Descriptor& socket, std::string& received) {
    char buffer[65536];
    const ssize_t size = recv(socket.number(), buffer, sizeof buffer, 0);
    if (size > 0) received.append(buffer, static_cast<std::size_t>(size));
    return size > 0;
}

} // namespace

Descriptor::~Descriptor() {
    if (m_number >= 0) close(m_number);
}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(m_number, other.m_number);
    return *this;
}

int Descriptor::release() { return std::exchange(m_number, -1); }

Descriptor listenOn(const std::filesystem::path& path) {
    std::filesystem::create_directories(path.parent_path());
    std::filesystem::remove(path);
    Descriptor made = makeSocket();
    if (!at(path, made, bind) || listen(made.number(), SOMAXCONN) != 0)
        throw std::system_error(errno, std::generic_category(), "listening on " + path.string());
    return made;
}

Descriptor connectTo(const std::filesystem::path& path) {
    Descriptor made = makeSocket();
    return at(path, made, connect) ? std::move(made) : Descriptor();
}

bool sendAll(const Descriptor& socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = send(socket.number(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

std::optional<std::string> receiveLine(const Descriptor& socket, std::string& pending) {
    while (pending.find('\n') == pending.npos)
        if (!receive(socket, pending)) return std::nullopt;
    const std::size_t end = pending.find('\n');
    std::string line = pending.substr(0, end);
    pending.erase(0, end + 1);
    return line;
}

Mailbox::Mailbox(std::filesystem::path path, Handler handler)
    : m_path(std::move(path)), m_socket(listenOn(m_path)),
      m_thread([number = m_socket.number(), handler = std::move(handler)] {
          while (const Descriptor sender{accept4(number, nullptr, nullptr, SOCK_CLOEXEC)}) {
              std::string message;
              while (receive(sender, message)) {
              }
              handler(message);
          }
      }) {}

Mailbox::~Mailbox() {
    shutdown(m_socket.number(), SHUT_RDWR);
    m_thread.join();
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
}

bool sendToMailbox(const std::filesystem::path& path, std::string_view message) {
    const Descriptor mailbox = connectTo(path);
    return mailbox && sendAll(mailbox, message);
}

} // namespace simulator
