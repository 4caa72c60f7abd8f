// How the device is held.
#pragma once

namespace simulator {

bool isLandscape(); // main thread

} // namespace simulator
