// Lays out the windows once per turn of the main run loop in which some view asked for it.
#pragma once

namespace simulator {

void scheduleLayout();
// Now, instead of at the end of the turn.
void layoutWindows();

} // namespace simulator
