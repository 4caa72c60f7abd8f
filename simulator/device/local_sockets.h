// Unix sockets in the device folder: how its processes reach each other.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace simulator {

// A descriptor that closes itself.
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept : m_number(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept;

    explicit operator bool() const { return m_number >= 0; }
    int number() const { return m_number; }
    int release();

  private:
    int m_number = -1;
};

enum class SocketKind { stream, datagram };

// Takes over the path, whoever had it. Throws std::system_error.
Descriptor listenOn(const std::filesystem::path& path, SocketKind kind);

// Empty when nobody listens there.
Descriptor connectTo(const std::filesystem::path& path, SocketKind kind);

// False when the other end has gone.
bool sendAll(const Descriptor& socket, std::string_view bytes);
std::string receiveUntilClosed(const Descriptor& socket);
// Reads up to a newline, which is left out; nothing when the other end closed before one. `pending` keeps
// what came after it for the next call.
std::optional<std::string> receiveLine(const Descriptor& socket, std::string& pending);

// A file name for any text.
std::string fileNameFor(std::string_view text);

} // namespace simulator
