// What the user sees, as JSON, and what the user does: taps, presses, typing, answers to alerts. All of it on
// the main thread; what an input needs and does not find is a std::invalid_argument that names it.
#pragma once

#include "CoreGraphics/CGGeometry.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

#ifdef __OBJC__
@class UIAlertController, UIBarButtonItem, UIView, UIViewController;
#else
class UIAlertController;
class UIBarButtonItem;
class UIView;
class UIViewController;
#endif

namespace simulator {

// The whole screen, laid out first:
// {"screen": {"width", "height", "scale"}, "keyWindow": VIEW or null, "presented": [CONTROLLER...], "alert":
// ALERT or null}. VIEW has class, frame [x, y, width, height], subviews and, where they are not the usual
// ones, tag, hidden, alpha, controller, text, image, gestures and so on; ALERT has title, message, style,
// actions, textFields, anchor.
nlohmann::json viewTreeAsJson();
nlohmann::json viewAsJson(UIView* view);

// The alert that waits for an answer, nil when there is none.
UIAlertController* frontAlert();
// The controller on top of everything that is presented; the root controller when nothing is.
UIViewController* frontController();

// A finger at the middle of the view. Whatever lies on top of it there gets the touch, as on a screen; the
// result is the view that did, nil when nothing takes touches at that place.
UIView* tap(UIView* view, unsigned taps = 1);
UIView* longPress(UIView* view, double seconds);
// The same at a point of the key window.
UIView* tapAt(CGPoint point, unsigned taps = 1);
UIView* longPressAt(CGPoint point, double seconds);

// A button of a bar; refused when it is not enabled.
void tapBarButtonItem(UIBarButtonItem* item);
// The button with that title in the bars of the front controller.
void tapBarButton(std::string_view title);

// Replaces the text of a field: of the front alert's when there is one, else of the key window's, counted
// from the top.
void typeText(std::size_t fieldIndex, std::string_view text);
void tapAlertAction(std::string_view title);

// Turns the device: the screen, the windows and their controllers follow.
void setLandscape(bool landscape);

} // namespace simulator
