#import "UIKit/internal/ControllerState.h"

namespace simulator {

void willAppear(UIViewController* controller, bool animated) {
    if (!controller || [controller controllerState].appeared) return;
    [controller view];
    [controller viewWillAppear:animated];
    for (UIViewController* child in [controller shownChildren])
        willAppear(child, animated);
}

void didAppear(UIViewController* controller, bool animated) {
    if (!controller || [controller controllerState].appeared) return;
    [controller controllerState].appeared = true;
    for (UIViewController* child in [controller shownChildren])
        didAppear(child, animated);
    [controller viewDidAppear:animated];
}

void willDisappear(UIViewController* controller, bool animated) {
    if (!controller || ![controller controllerState].appeared) return;
    for (UIViewController* child in [controller shownChildren])
        willDisappear(child, animated);
    [controller viewWillDisappear:animated];
}

void didDisappear(UIViewController* controller, bool animated) {
    if (!controller || ![controller controllerState].appeared) return;
    [controller controllerState].appeared = false;
    for (UIViewController* child in [controller shownChildren])
        didDisappear(child, animated);
    [controller viewDidDisappear:animated];
}

void exchangeChildren(UIViewController* container, UIViewController* old, UIViewController* replacement,
                      CGRect frame, bool animated) {
    const Retained<UIViewController*> oldAlive(old);
    const bool isShown = [container controllerState].appeared;
    if (isShown) {
        willDisappear(old, animated);
        willAppear(replacement, animated);
    }
    [[old viewIfLoaded] removeFromSuperview];
    if (replacement) {
        [[replacement view] setFrame:frame];
        [[container view] insertSubview:[replacement view] atIndex:0]; // below the bars
    }
    if (!isShown) return;
    didDisappear(old, animated);
    [[container view] layoutIfNeeded];
    didAppear(replacement, animated);
}

} // namespace simulator
