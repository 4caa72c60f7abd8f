// Targets and actions, as controls, gesture recognisers and bar items call them.
#pragma once

#import "UIKit/internal/Ownership.h"

namespace simulator {

struct ActionTarget {
    Weak target;
    SEL action = nullptr;
    NSUInteger events = 0; // which events of a control; unused elsewhere

    bool matches(id otherTarget, SEL otherAction) const {
        return (!otherTarget || target.get() == otherTarget) &&
               (!otherAction || sel_isEqual(action, otherAction));
    }
};

// Calls the action with the sender. An action that takes nothing ignores it. A target that has gone is
// skipped.
void sendAction(id target, SEL action, id sender);

} // namespace simulator
