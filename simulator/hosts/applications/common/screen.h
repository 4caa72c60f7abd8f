/// What the user has before them, found without knowing the application.
#pragma once

#import "UIKit/UIKit.h"

#include "device/strings.h"

#include <functional>
#include <stdexcept>
#include <string>

namespace simulator {

/// Makes a window of the screen's size with the controller as its root and makes it the key window. Main
/// thread.
void showRootViewController(UIViewController* controller);

/// The controller that the user works with: what is presented over everything, else the deepest selected or
/// topmost one. nil before an application has a window. Main thread.
UIViewController* controllerOnScreen();

/// Lets the main run loop work until the condition holds; throws std::runtime_error naming `what` after the
/// time-out (seconds).
void waitUntil(const std::function<bool()>& condition, const std::string& what, double timeout = 5);

/// The same for photos that something adds to the library: until there is one more than before.
void waitForNewPhoto(const std::function<void()>& action);

/// Lays out the key window, as happens before every frame.
void layOutScreen();

/// The controller on the screen, which must be of the class; throws std::runtime_error otherwise.
template <typename Controller> Controller* onScreen() {
    UIViewController* front = controllerOnScreen();
    if (![front isKindOfClass:[Controller class]])
        throw std::runtime_error(text([[Controller class] description]) + " is not on the screen, but " +
                                 text([[front class] description]));
    return static_cast<Controller*>(front);
}

} // namespace simulator
