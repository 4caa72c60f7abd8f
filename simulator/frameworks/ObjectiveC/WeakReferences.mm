#include "frameworks/ObjectiveC/ObjectiveC.h"
#include "frameworks/ObjectiveC/Replacement.h"

#import <Foundation/Foundation.h>

#if __has_feature(thread_sanitizer)
#include <sanitizer/tsan_interface.h>
#endif

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <unordered_map>

namespace {

// Who refers weakly to what. The lock is held while the last reference goes, so that a load either gets the
// object alive or nothing.
class WeakReferences {
  public:
    // Cheap and without the lock: false means that nothing refers to the object. Only an owner of the object
    // may store a reference to it, so none can appear while its last owner releases.
    bool mayRefer(id object) { return marks(object).load(std::memory_order_acquire) != 0; }

    id store(id* location, id object) {
        const std::lock_guard guard(m_lock);
        forget(location);
        *location = object;
        if (object == nil) return nil;
        m_locations.emplace(object, location);
        marks(object).fetch_add(1, std::memory_order_release);
        return object;
    }

    id loadRetained(id* location) {
        const std::lock_guard guard(m_lock);
        return [*location retain];
    }

    // True when the caller has to deallocate the object.
    bool releaseWasLast(id object) {
        const std::lock_guard guard(m_lock);
        if (!NSDecrementExtraRefCountWasZero(object)) return false;
        auto [first, last] = m_locations.equal_range(object);
        for (; first != last; first = m_locations.erase(first)) {
            *first->second = nil;
            marks(object).fetch_sub(1, std::memory_order_release);
        }
        return true;
    }

  private:
    using Mark = std::atomic<std::uint32_t>;

    Mark& marks(id object) {
        return m_marks[(reinterpret_cast<std::uintptr_t>(object) >> 4) % m_marks.size()];
    }

    void forget(id* location) {
        auto [first, last] = m_locations.equal_range(*location);
        while (first != last && first->second != location)
            ++first;
        if (first == last) return;
        m_locations.erase(first);
        marks(*location).fetch_sub(1, std::memory_order_release);
    }

    std::mutex m_lock;
    std::unordered_multimap<id, id*> m_locations;
    std::array<Mark, 4096> m_marks{};
};

WeakReferences& weakReferences() {
    static auto* shared = new WeakReferences;
    return *shared;
}

// Whoever lets go of an object is done with it before the last owner frees it. The count that orders the two
// is within Foundation, where ThreadSanitizer cannot see it.
#if __has_feature(thread_sanitizer)
void isDoneWith(id object) { __tsan_release(object); }
void waitsForAllOwnersOf(id object) { __tsan_acquire(object); }
#else
void isDoneWith(id) {}
void waitsForAllOwnersOf(id) {}
#endif

void releaseObject(id self, SEL) {
    isDoneWith(self);
    WeakReferences& references = weakReferences();
    const bool last = references.mayRefer(self) ? references.releaseWasLast(self)
                                                : bool(NSDecrementExtraRefCountWasZero(self));
    if (!last) return;
    waitsForAllOwnersOf(self);
    simulator::dropAssociatedObjects(self);
    [self dealloc];
}

__attribute__((constructor)) void takeOverRelease() {
    simulator::replaceMethod("NSObject", '-', "release", releaseObject);
}

} // namespace

id objc_initWeak(id* location, id object) {
    *location = nil;
    return weakReferences().store(location, object);
}

id objc_storeWeak(id* location, id object) { return weakReferences().store(location, object); }
id objc_loadWeakRetained(id* location) { return weakReferences().loadRetained(location); }
void objc_destroyWeak(id* location) { weakReferences().store(location, nil); }
