#include "hosts/control_socket.h"

#include "device/exceptions.h"
#include "device/local_sockets.h"
#include "device/threads.h"
#include "hosts/host.h"

#include <nlohmann/json.hpp>
#include <sys/socket.h>

#include <future>
#include <memory>
#include <thread>

namespace simulator {
namespace {

using nlohmann::json;

json answer(const std::string& line) {
    json result;
    const auto exception = anyExceptionOf([&] { result = performVerb(json::parse(line)); });
    return exception ? json{{"error", *exception}} : result;
}

std::string answerOnMainThread(const std::string& line) {
    auto answered = std::make_shared<std::promise<std::string>>();
    performOnMainThread([answered, line] {
        answered->set_value(answer(line).dump(-1, ' ', false, json::error_handler_t::replace));
    });
    return answered->get_future().get();
}

void serve(const Descriptor& client) {
    std::string pending;
    while (const auto line = receiveLine(client, pending))
        if (!sendAll(client, answerOnMainThread(*line) + "\n")) return;
}

} // namespace

void serveControlSocket(const std::filesystem::path& path) {
    auto socket = std::make_shared<Descriptor>(listenOn(path));
    std::thread([socket] {
        for (;;) {
            const int client = accept4(socket->number(), nullptr, nullptr, SOCK_CLOEXEC);
            if (client >= 0)
                std::thread([connection = std::make_shared<Descriptor>(client)] {
                    serve(*connection);
                }).detach();
        }
    }).detach();
}

std::filesystem::path controlSocketOf(const std::filesystem::path& device,
                                      const std::string& bundleIdentifier) {
    return device / "run" / (bundleIdentifier + ".sock");
}

} // namespace simulator
