#include "objc/replacement.h"
#include "photos/albumactions/hooks.h"
#include "settings/settings.h"

namespace rollkeeper::viewTweaks {

namespace {
constexpr double increasedZoomFactor = 400.0;
}

bool shouldSkipDeleteConfirmation(NSObject self, SEL command) {
    if (settings::skipDelete && settings::enabled) return true;
    return original<shouldSkipDeleteConfirmation>(self, command);
}

bool wantsIrisBadgeVisible(NSObject self, SEL command) {
    if (settings::enabled && settings::showLiveBadge) return true;
    return original<wantsIrisBadgeVisible>(self, command);
}

void setDefaultMaximumZoomFactor(NSObject self, SEL command, double factor) {
    const bool increased = settings::enabled && settings::increaseZoom;
    original<setDefaultMaximumZoomFactor>(self, command, increased ? increasedZoomFactor : factor);
}

// Passes through: stock albums are reordered exactly as Photos allows, whatever "reorderStock" says.
bool canReorderCollection(NSObject self, SEL command, PHCollection collection) {
    return original<canReorderCollection>(self, command, collection);
}

} // namespace rollkeeper::viewTweaks
