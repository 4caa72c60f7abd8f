// Brings a touch to whom it concerns: gesture recognisers first, then the control or cell that was hit.
#pragma once

#import "UIKit/internal/RecognizerState.h"

namespace simulator {

void deliver(const Touch& touch);

} // namespace simulator
