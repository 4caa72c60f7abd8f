#import "UIKit/UIControl.h"

#import "UIKit/internal/ActionTargets.h"
#import "UIKit/internal/MainThread.h"

#include <vector>

using simulator::ActionTarget;
using simulator::mainThreadOnly;

namespace simulator {

struct ControlState {
    std::vector<ActionTarget> targets;
    bool enabled = true;
    bool selected = false;
    bool highlighted = false;
};

} // namespace simulator

@implementation UIControl

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _controlState = new simulator::ControlState;
    return self;
}

- (void)dealloc {
    delete _controlState;
    [super dealloc];
}

- (BOOL)isEnabled {
    mainThreadOnly(self, _cmd);
    return _controlState->enabled ? YES : NO;
}

- (void)setEnabled:(BOOL)enabled {
    mainThreadOnly(self, _cmd);
    _controlState->enabled = enabled;
}

- (BOOL)isSelected {
    mainThreadOnly(self, _cmd);
    return _controlState->selected ? YES : NO;
}

- (void)setSelected:(BOOL)selected {
    mainThreadOnly(self, _cmd);
    _controlState->selected = selected;
}

- (BOOL)isHighlighted {
    mainThreadOnly(self, _cmd);
    return _controlState->highlighted ? YES : NO;
}

- (void)setHighlighted:(BOOL)highlighted {
    mainThreadOnly(self, _cmd);
    _controlState->highlighted = highlighted;
}

- (UIControlState)state {
    mainThreadOnly(self, _cmd);
    UIControlState state = UIControlStateNormal;
    if (!_controlState->enabled) state |= UIControlStateDisabled;
    if (_controlState->selected) state |= UIControlStateSelected;
    if (_controlState->highlighted) state |= UIControlStateHighlighted;
    return state;
}

- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
    mainThreadOnly(self, _cmd);
    for (ActionTarget& each : _controlState->targets) {
        if (!target || !each.matches(target, action)) continue;
        each.events |= events; // the same pair is told once for each event
        return;
    }
    if (target) _controlState->targets.push_back({target, action, events});
}

- (void)removeTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
    mainThreadOnly(self, _cmd);
    for (ActionTarget& each : _controlState->targets)
        if (each.matches(target, action)) each.events &= ~NSUInteger(events);
    std::erase_if(_controlState->targets, [](const ActionTarget& each) { return each.events == 0; });
}

- (void)sendActionsForControlEvents:(UIControlEvents)events {
    mainThreadOnly(self, _cmd);
    const simulator::Retained<UIControl*> alive(self);
    const std::vector<ActionTarget> targets = _controlState->targets; // an action may change them
    for (const ActionTarget& each : targets)
        if (each.events & events) [self sendAction:each.action to:each.target.get() forEvent:nil];
}

- (void)sendAction:(SEL)action to:(id)target forEvent:(id)event {
    mainThreadOnly(self, _cmd);
    simulator::sendAction(target, action, self);
}

@end
