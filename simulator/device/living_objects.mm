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
    ObjectCounts grown;
    for (const auto& [name, count] : after) {
        const auto found = before.find(name);
        const int more = count - (found == before.end() ? 0 : found->second);
        if (more > 0) grown[name] = more;
    }
    return grown;
}

} // namespace simulator
