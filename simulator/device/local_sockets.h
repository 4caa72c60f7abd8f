// Unix sockets in the device folder: how its processes reach each other.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

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

// Takes over the path, whoever had it, and makes its folder. Throws std::system_error.
Descriptor listenOn(const std::filesystem::path& path);

// Empty when nobody listens there.
Descriptor connectTo(const std::filesystem::path& path);

// False when the other end has gone.
bool sendAll(const Descriptor& socket, std::string_view bytes);
// Reads up to a newline, which is left out; nothing when the other end closed before one. `pending` keeps
// what came after it for the next call.
std::optional<std::string> receiveLine(const Descriptor& socket, std::string& pending);

// Takes what is sent to a path, each message whole and in order, on a thread of its own.
class Mailbox {
  public:
    using Handler = std::function<void(const std::string& message)>;

    Mailbox(std::filesystem::path path, Handler handler);
    ~Mailbox(); // messages that are on their way are lost

  private:
    std::filesystem::path m_path;
    Descriptor m_socket;
    std::thread m_thread;
};

// False when no mailbox took it.
bool sendToMailbox(const std::filesystem::path& path, std::string_view message);

} // namespace simulator
