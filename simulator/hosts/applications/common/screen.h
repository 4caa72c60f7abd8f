/// What the user has before them, found without knowing the application.
#pragma once

#import "UIKit/UIKit.h"

#include "device/strings.h"

#include <functional>
#include <string>

namespace simulator {

/// The controller that the user works with: what is presented over everything, else the deepest selected or
/// topmost one. nil before an application has a window. Main thread.
UIViewController* controllerOnScreen();

/// Lets the main run loop work until the condition holds; throws std::runtime_error naming `what` after the
/// time-out (seconds).
void waitUntil(const std::function<bool()>& condition, const std::string& what, double timeout = 5);

/// Lays out the key window, as happens before every frame.
void layOutScreen();

} // namespace simulator
