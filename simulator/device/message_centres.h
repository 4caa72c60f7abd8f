// Named message centres between processes: one server per name, any number of senders, no answers.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace simulator {

// Receives the messages of one centre in the order in which they were sent, on a thread of its own.
class MessageServer {
  public:
    using Handler = std::function<void(std::string message)>;

    // Takes the name over. `unlocked`: senders in a sandbox reach it as well. Throws std::runtime_error
    // without a mounted device.
    MessageServer(std::string_view centre, bool unlocked, Handler handler);
    ~MessageServer(); // messages that are on their way are lost

    void unlock();

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

// False when no server took the message. `unlocked`: whether the sender has opened the centre for itself,
// without which a sandboxed sender does not get through.
bool sendToCentre(std::string_view centre, bool unlocked, std::string_view message);

} // namespace simulator
