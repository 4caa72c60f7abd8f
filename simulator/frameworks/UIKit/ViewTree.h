// What the user sees, as JSON and as a picture, and what the user does: taps, presses, typing, answers to
// alerts. All of it on the main thread; what an input needs and does not find is a std::invalid_argument that
// names it.
#pragma once

#include "UIKit/model/Spot.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>
#include <vector>

#ifdef __OBJC__
@class UIAlertController, UIView, UIViewController;
#else
class UIAlertController;
class UIView;
class UIViewController;
#endif

namespace simulator {

// The whole screen, laid out first: {"keyWindow": VIEW or null, "alert": ALERT or null}. VIEW has class,
// frame [x, y, width, height], subviews and, where there is such, tag, hidden, alpha, controller, text,
// image; ALERT has title, message, style, actions, textFields, anchor.
nlohmann::json viewTreeAsJson();
nlohmann::json viewAsJson(UIView* view);

// The screen, laid out first, as an SVG document of one unit to a point, with what a finger can act on, from
// the back to the front. Empty when there is no key window. To be used before the screen changes.
struct Picture {
    std::string svg;
    std::vector<Spot> spots;
};
Picture screenPicture();
std::string screenshotAsSvg();
// The spots that nothing else lies on.
std::vector<Spot> reachableSpots(const Picture& picture);

// The screen as it was when a finger came down, and where.
struct TouchedScreen {
    std::string svg;
    CGPoint point;
};
// Those since the last call. They are kept from the first call on; before, none are.
std::vector<TouchedScreen> takeTouchedScreens();
// For touches that are acted upon without being delivered: at the middle of the view, where it is on the
// screen, or of the spot with that label.
void noteTouch(UIView* view);
void noteTouch(std::string_view label);

// The controller on top of everything that is presented; the root controller when nothing is.
UIViewController* frontController();
// The alert that waits for an answer, nil when there is none.
UIAlertController* frontAlert();

// A finger at the middle of the view. Whatever lies on top of it there gets the touch, as on a screen; the
// result is the view that did, nil when nothing takes touches at that place.
UIView* tap(UIView* view, unsigned taps = 1);
UIView* longPress(UIView* view, double seconds);
UIView* pinch(UIView* view);
// As far as it goes: through the preview to what it opens.
UIView* hardPress(UIView* view);
// The same at a point of the screen, bars, alerts and share sheets included.
void tapAt(CGPoint point, unsigned taps = 1);
void longPressAt(CGPoint point, double seconds);
void pinchAt(CGPoint point);
void hardPressAt(CGPoint point);
// Drags what can be scrolled there, so that the content moves on by so many points, as far as there is more.
void scrollAt(CGPoint point, CGSize distance);
// Where the screen has another size or orientation than the window, the window follows.
void followScreen();

// The button with that title in the bars of the front controller.
void tapBarButton(std::string_view title);

// Replaces the text of a field of the front alert, counted from the top.
void typeText(std::size_t fieldIndex, std::string_view text);
void tapAlertAction(std::string_view title);

} // namespace simulator
