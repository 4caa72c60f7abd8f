// A short tick of the device's haptic engine, where it has one.
#pragma once

namespace rollkeeper {

void hapticTick();

} // namespace rollkeeper
