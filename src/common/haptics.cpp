#include "common/haptics.h"

#include "platform/uikit.h"

namespace rollkeeper {

namespace {
constexpr NSInteger tick = 1001; // private to the haptic engine
}

void hapticTick() {
    const UIDevice device = UIDevice::currentDevice();
    if (device.respondsTo<"_tapticEngine">()) device.tapticEngine().actuateFeedback(tick);
}

} // namespace rollkeeper
