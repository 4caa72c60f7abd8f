// Where the threads of the server and the one thread of the phone meet.
#pragma once

#include "page/phone.h"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <string>

namespace simulator::page {

class Desk {
  public:
    explicit Desk(Phone& phone) : m_phone(phone) {}

    // Does what is asked and, while somebody watches, looks at the phone a few times a second; until stop().
    // On the thread of the phone.
    void run();

    // The rest from any thread.
    void stop();
    // Waits until the phone has done it and can be seen so; throws what it throws, or std::runtime_error
    // after stop().
    void perform(const nlohmann::json& request);

    // All that the page shows, as JSON; the number grows with every change.
    struct Sight {
        std::uint64_t number = 0;
        std::string state;
        std::string screen;
    };
    // The sight after that number, or the same one when there is none in time; nothing after stop().
    std::optional<Sight> sightAfter(std::uint64_t number, double seconds);
    Sight sight();

    PhotoLibrary& photos() { return m_phone.photos(); }

    // Somebody watches while it lives; no more than a few may.
    class Watcher {
      public:
        explicit Watcher(Desk& desk);
        ~Watcher();
        Watcher(const Watcher&) = delete;
        Watcher& operator=(const Watcher&) = delete;

      private:
        Desk& m_desk;
    };
    static constexpr unsigned mostWatchers = 24;

  private:
    void look();

    Phone& m_phone;
    std::mutex m_lock; // guards all that follows
    std::condition_variable m_changed;
    std::deque<std::packaged_task<void()>> m_tasks;
    Sight m_sight;
    std::uint64_t m_screenNumber = 0;
    unsigned m_watchers = 0;
    bool m_stopped = false;
};

} // namespace simulator::page
