#include "frameworks/ObjectiveC/ObjectiveC.h"

#import <Foundation/Foundation.h>

#include <atomic>
#include <map>
#include <mutex>
#include <unordered_map>

namespace {

struct Associations {
    std::mutex lock;
    std::atomic<bool> isUsed = false; // so that all other processes pay for one load only
    std::unordered_map<id, std::map<const void*, id>> byObject;
};

Associations& associations() {
    static auto* shared = new Associations;
    return *shared;
}

} // namespace

void objc_setAssociatedObject(id object, const void* key, id value, uintptr_t policy) {
    Associations& known = associations();
    if (policy != 0) [value retain];
    id previous = nil;
    {
        const std::lock_guard guard(known.lock);
        known.isUsed = true;
        previous = std::exchange(known.byObject[object][key], value);
    }
    [previous release];
}

void simulator::dropAssociatedObjects(id object) {
    Associations& known = associations();
    if (!known.isUsed) return;
    std::map<const void*, id> dropped;
    {
        const std::lock_guard guard(known.lock);
        const auto found = known.byObject.find(object);
        if (found == known.byObject.end()) return;
        dropped = std::move(found->second);
        known.byObject.erase(found);
    }
    for (const auto& [key, value] : dropped)
        [value release];
}
