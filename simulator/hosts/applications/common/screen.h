/// What the user has before them, found without knowing the application.
#pragma once

#import "UIKit/UIKit.h"

#include <functional>
#include <string>

namespace simulator {

/// The controller that the user works with: what is presented over everything, else the deepest selected or
/// topmost one. nil before an application has a window. Main thread.
UIViewController* controllerOnScreen();

/// A tap of a finger on the middle of a view. Throws std::runtime_error when the view cannot be touched
/// there.
void tap(UIView* view);

/// Taps a button of a bar by its title; throws std::runtime_error when there is none.
void tapBarButton(UIViewController* controller, const std::string& title);

/// Taps an action of the alert or sheet on the screen; throws std::runtime_error when there is no such alert
/// or action.
void tapAlertAction(const std::string& title);

/// Lets the main run loop work until the condition holds; throws std::runtime_error naming `what` after the
/// time-out (seconds).
void waitUntil(const std::function<bool()>& condition, const std::string& what, double timeout = 5);

/// Lays out the key window, as happens before every frame.
void layOutScreen();

/// UTF-8 both ways; the empty string for nil.
std::string text(NSString* string);
NSString* string(const std::string& text);

} // namespace simulator
