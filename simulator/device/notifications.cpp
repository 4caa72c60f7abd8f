#include "device/notifications.h"

#include "device/local_sockets.h"
#include "device/root.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>
#include <mutex>
#include <thread>

namespace simulator {
namespace {

struct Receiver {
    std::mutex lock;
    std::function<void(const std::string&)> arrived;
    std::filesystem::path folder; // of the device that this process receives from
};

Receiver& receiver() {
    static auto* shared = new Receiver;
    return *shared;
}

std::filesystem::path notificationFolder() {
    const std::filesystem::path device = mountedDevice();
    return device.empty() ? device : device / "run" / "notifications";
}

void receiveForEver(Descriptor socket, const std::function<void(const std::string&)>& arrived) {
    std::array<char, 4096> buffer;
    for (;;) {
        const ssize_t size = recv(socket.number(), buffer.data(), buffer.size(), 0);
        if (size < 0 && errno != EINTR) return;
        if (size > 0) arrived(std::string(buffer.data(), static_cast<std::size_t>(size)));
    }
}

} // namespace

void receiveNotifications(std::function<void(const std::string&)> arrived) {
    Receiver& mine = receiver();
    const std::lock_guard guard(mine.lock);
    if (mine.arrived) return;
    mine.arrived = std::move(arrived);
    mine.folder = notificationFolder();
    if (mine.folder.empty()) return;
    std::filesystem::create_directories(mine.folder);
    Descriptor socket = listenOn(mine.folder / std::to_string(getpid()), SocketKind::datagram);
    std::thread([socket = std::move(socket), arrived = mine.arrived]() mutable {
        receiveForEver(std::move(socket), arrived);
    }).detach();
}

void postNotification(std::string_view name) {
    const std::filesystem::path folder = notificationFolder();
    if (folder.empty()) {
        Receiver& mine = receiver();
        const std::lock_guard guard(mine.lock);
        if (mine.arrived) mine.arrived(std::string(name));
        return;
    }
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
        const Descriptor socket = connectTo(entry.path(), SocketKind::datagram);
        if (!socket || !sendAll(socket, name))
            std::filesystem::remove(entry.path(), ignored); // its process has gone
    }
}

} // namespace simulator
