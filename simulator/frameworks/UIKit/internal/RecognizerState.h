// What a gesture recogniser keeps, and how touches drive it.
#pragma once

#import "UIKit/UIGestureRecognizer.h"
#import "UIKit/internal/ActionTargets.h"

#include <vector>

namespace simulator {

// One finger's doing at one place: so many taps, or a press held for some seconds.
struct Touch {
    UIView* hitView = nil;
    CGPoint pointInWindow = {};
    NSUInteger taps = 0; // 0 for a press
    double seconds = 0;
};

struct RecognizerState {
    std::vector<ActionTarget> targets;
    UIView* view = nil; // not retained: it retains the recogniser
    Weak delegate;
    UIGestureRecognizerState state = UIGestureRecognizerStatePossible;
    CGPoint pointInWindow = {};
    bool enabled = true;
    bool cancelsTouches = true;
};

void setView(UIGestureRecognizer* recognizer, UIView* view);

} // namespace simulator

@interface UIGestureRecognizer (Touches)

- (simulator::RecognizerState&)recognizerState;

// Whether the touch is this recogniser's gesture.
- (BOOL)recognizes:(const simulator::Touch&)touch;
// Goes through the states of the gesture, telling the targets.
- (void)perform:(const simulator::Touch&)touch;
// Enters the state and tells the targets.
- (void)enterState:(UIGestureRecognizerState)state;
// Whether the delegate lets the gesture begin.
- (BOOL)mayBegin;
- (BOOL)mayRecognizeBeside:(UIGestureRecognizer*)other;

@end
