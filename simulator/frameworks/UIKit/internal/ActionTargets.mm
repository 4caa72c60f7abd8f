#import "UIKit/internal/ActionTargets.h"

namespace simulator {

void sendAction(id target, SEL action, id sender) {
    if (!target || !action) return;
    const Retained<> alive(target); // the action may take away the last other reference
    // Actions take up to two arguments, the second being an event.
    [target performSelector:action withObject:sender withObject:nil];
}

} // namespace simulator
