#include "Dispatch/Dispatch.h"

#include "device/clock.h"
#include "device/threads.h"

#import <Foundation/Foundation.h>

#include <Block.h>

#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <thread>

namespace {

// A thread that works off what it is given, for as long as the process lives.
class SerialThread {
  public:
    SerialThread() {
        std::thread([this] { work(); }).detach();
    }

    void add(std::function<void()> item) {
        {
            const std::lock_guard guard(m_lock);
            m_items.push_back(std::move(item));
        }
        m_arrived.notify_one();
    }

  private:
    [[noreturn]] void work() {
        simulator::registerThread();
        for (;;)
            simulator::runAsEvent(next());
    }

    std::function<void()> next() {
        std::unique_lock guard(m_lock);
        m_arrived.wait(guard, [this] { return !m_items.empty(); });
        std::function<void()> item = std::move(m_items.front());
        m_items.pop_front();
        return item;
    }

    std::mutex m_lock;
    std::condition_variable m_arrived;
    std::deque<std::function<void()>> m_items;
};

} // namespace

struct dispatch_queue_s {
    SerialThread* thread; // null for the main queue

    void add(std::function<void()> item) {
        if (thread == nullptr)
            simulator::performOnMainThread(std::move(item));
        else
            thread->add(std::move(item));
    }
};

extern "C" constinit struct dispatch_queue_s _dispatch_main_q = {nullptr};

namespace {

std::function<void()> owning(dispatch_block_t block) {
    dispatch_block_t copy = Block_copy(block);
    return [copy] {
        copy();
        Block_release(copy);
    };
}

// gnustep-base has a _Block_copy as well, which hands back the block on the stack. Whichever library comes
// first in link order wins, and the wrong one corrupts memory much later: better to find out now.
__attribute__((constructor)) void checkThatBlocksAreReallyCopied() {
    int captured = 0;
    dispatch_block_t onStack = ^{
        (void)captured;
    };
    dispatch_block_t copy = Block_copy(onStack);
    if (static_cast<void*>(copy) == static_cast<void*>(onStack)) {
        std::fputs("simulator: blocks are not copied: BlocksRuntime must come before gnustep-base\n", stderr);
        std::abort();
    }
    Block_release(copy);
}

} // namespace

dispatch_queue_t dispatch_queue_create(const char*, dispatch_queue_attr_t) {
    static auto& lock = *new std::mutex;
    static auto& queues = *new std::deque<dispatch_queue_s>;
    const std::lock_guard guard(lock);
    return &queues.emplace_back(new SerialThread);
}

void dispatch_async(dispatch_queue_t queue, dispatch_block_t block) { queue->add(owning(block)); }

void dispatch_sync(dispatch_queue_t queue, dispatch_block_t block) {
    std::promise<void> done;
    queue->add([&] {
        block();
        done.set_value();
    });
    done.get_future().wait();
}

dispatch_time_t dispatch_time(dispatch_time_t base, int64_t nanoseconds) {
    const auto now = static_cast<dispatch_time_t>(simulator::clock().now() * NSEC_PER_SEC);
    return (base == DISPATCH_TIME_NOW ? now : base) + static_cast<dispatch_time_t>(nanoseconds);
}

void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block) {
    const double seconds = static_cast<double>(when) / NSEC_PER_SEC - simulator::clock().now();
    simulator::clock().afterOnMainThread(
        seconds, [queue, item = owning(block)]() mutable { queue->add(std::move(item)); });
}
