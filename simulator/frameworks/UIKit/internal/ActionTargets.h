// Actions, as controls, gesture recognisers and bar items call them.
#pragma once

#import "UIKit/internal/Ownership.h"

namespace simulator {

// Calls the action with the sender. An action that takes nothing ignores it.
inline void sendAction(id target, SEL action, id sender) {
    if (target == nil || action == nullptr) return;
    const Retained<> alive(target); // the action may take away the last other reference
    // Actions take up to two arguments, the second being an event.
    [target performSelector:action withObject:sender withObject:nil];
}

} // namespace simulator
