#include "device/local_sockets.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

namespace simulator {
namespace {

// The address of a socket is limited to about a hundred letters; longer paths go through the folder's
// descriptor.
class Address {
  public:
    explicit Address(const std::filesystem::path& path) {
        m_address.sun_family = AF_UNIX;
        std::string text = path.string();
        if (text.size() >= sizeof m_address.sun_path) {
            m_folder = Descriptor(open(path.parent_path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
            text = "/proc/self/fd/" + std::to_string(m_folder.number()) + "/" + path.filename().string();
        }
        if (text.size() >= sizeof m_address.sun_path)
            throw std::system_error(ENAMETOOLONG, std::generic_category(), "socket " + path.string());
        std::memcpy(m_address.sun_path, text.c_str(), text.size() + 1);
    }

    const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&m_address); }
    static constexpr socklen_t size = sizeof(sockaddr_un);

  private:
    sockaddr_un m_address{};
    Descriptor m_folder;
};

Descriptor makeSocket(SocketKind kind) {
    const int type = kind == SocketKind::stream ? SOCK_STREAM : SOCK_DGRAM;
    Descriptor made(socket(AF_UNIX, type | SOCK_CLOEXEC, 0));
    if (!made) throw std::system_error(errno, std::generic_category(), "socket");
    return made;
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

Descriptor listenOn(const std::filesystem::path& path, SocketKind kind) {
    Descriptor made = makeSocket(kind);
    const Address address(path);
    unlink(path.c_str());
    if (bind(made.number(), address.get(), Address::size) != 0)
        throw std::system_error(errno, std::generic_category(), "binding " + path.string());
    if (kind == SocketKind::stream && listen(made.number(), SOMAXCONN) != 0)
        throw std::system_error(errno, std::generic_category(), "listening on " + path.string());
    return made;
}

Descriptor connectTo(const std::filesystem::path& path, SocketKind kind) {
    Descriptor made = makeSocket(kind);
    const Address address(path);
    if (connect(made.number(), address.get(), Address::size) != 0) return {};
    return made;
}

bool sendAll(const Descriptor& socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = send(socket.number(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) continue;
        if (sent < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

std::string receiveUntilClosed(const Descriptor& socket) {
    std::string received;
    std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t size = recv(socket.number(), buffer.data(), buffer.size(), 0);
        if (size < 0 && errno == EINTR) continue;
        if (size <= 0) return received;
        received.append(buffer.data(), static_cast<std::size_t>(size));
    }
}

std::optional<std::string> receiveLine(const Descriptor& socket, std::string& pending) {
    std::array<char, 65536> buffer;
    for (;;) {
        if (const std::size_t end = pending.find('\n'); end != pending.npos) {
            std::string line = pending.substr(0, end);
            pending.erase(0, end + 1);
            return line;
        }
        const ssize_t size = recv(socket.number(), buffer.data(), buffer.size(), 0);
        if (size < 0 && errno == EINTR) continue;
        if (size <= 0) return std::nullopt;
        pending.append(buffer.data(), static_cast<std::size_t>(size));
    }
}

std::string fileNameFor(std::string_view text) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string name;
    for (const char letter : text) {
        const auto code = static_cast<unsigned char>(letter);
        const bool plain = (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') ||
                           (code >= '0' && code <= '9') || code == '.' || code == '-' || code == '_';
        if (plain)
            name += letter;
        else
            name += {'%', digits[code >> 4], digits[code & 15]};
    }
    return name;
}

} // namespace simulator
