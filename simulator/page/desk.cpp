#include "page/desk.h"

#include <chrono>

namespace simulator::page {

namespace {

constexpr auto betweenLooks = std::chrono::milliseconds(300);

} // namespace

void Desk::run() {
    look();
    std::unique_lock lock(m_lock);
    while (!m_stopped) {
        m_changed.wait_for(lock, betweenLooks, [this] { return m_stopped || !m_tasks.empty(); });
        std::packaged_task<void()> task([this] { look(); });
        if (!m_tasks.empty()) {
            task = std::move(m_tasks.front());
            m_tasks.pop_front();
        } else if (m_watchers == 0) {
            continue;
        }
        lock.unlock();
        task(); // what it throws is for who asked; a look that fails is followed by the next one
        lock.lock();
    }
    m_tasks.clear(); // breaks their promises
}

void Desk::look() {
    nlohmann::json seen = m_phone.look();
    const std::lock_guard guard(m_lock);
    const bool isNewScreen = m_phone.screen() != m_sight.screen;
    if (isNewScreen) ++m_screenNumber;
    seen["screen"]["number"] = m_screenNumber;
    std::string state = seen.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    if (state == m_sight.state) return;
    m_sight = {m_sight.number + 1, std::move(state), m_phone.screen()};
    m_changed.notify_all();
}

void Desk::stop() {
    const std::lock_guard guard(m_lock);
    m_stopped = true;
    m_changed.notify_all();
}

void Desk::perform(const nlohmann::json& request) {
    std::packaged_task<void()> task([this, &request] {
        std::exception_ptr refusal;
        try {
            m_phone.perform(request);
        } catch (...) {
            refusal = std::current_exception();
        }
        look();
        if (refusal) std::rethrow_exception(refusal);
    });
    std::future<void> done = task.get_future();
    {
        const std::lock_guard guard(m_lock);
        if (m_stopped) throw std::runtime_error("the device is being switched off");
        m_tasks.push_back(std::move(task));
        m_changed.notify_all();
    }
    done.get();
}

std::optional<Desk::Sight> Desk::sightAfter(std::uint64_t number, double seconds) {
    std::unique_lock lock(m_lock);
    m_changed.wait_for(lock, std::chrono::duration<double>(seconds),
                       [&] { return m_stopped || m_sight.number > number; });
    return m_stopped ? std::nullopt : std::optional(m_sight);
}

Desk::Sight Desk::sight() {
    const std::lock_guard guard(m_lock);
    return m_sight;
}

Desk::Watcher::Watcher(Desk& desk) : m_desk(desk) {
    const std::lock_guard guard(desk.m_lock);
    if (desk.m_watchers == mostWatchers) throw std::runtime_error("too many pages look at this device");
    ++desk.m_watchers;
    desk.m_changed.notify_all();
}

Desk::Watcher::~Watcher() {
    const std::lock_guard guard(m_desk.m_lock);
    --m_desk.m_watchers;
}

} // namespace simulator::page
