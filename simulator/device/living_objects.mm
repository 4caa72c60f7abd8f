#include "device/living_objects.h"

#import <Foundation/NSDebug.h>
#include <objc/runtime.h>

#include <cstdlib>

namespace simulator {

void startCountingObjects() { GSDebugAllocationActive(YES); }

ObjectCounts livingObjects() {
    ObjectCounts counts;
    Class* classes = GSDebugAllocationClassList();
    for (Class* each = classes; *each != nullptr; ++each)
        counts[class_getName(*each)] = GSDebugAllocationCount(*each);
    std::free(classes);
    return counts;
}

ObjectCounts growth(const ObjectCounts& before, const ObjectCounts& after) {
    ObjectCounts grown = after;
    for (const auto& [name, count] : before)
        grown[name] -= count;
    std::erase_if(grown, [](const auto& each) { return each.second <= 0; });
    return grown;
}

} // namespace simulator
