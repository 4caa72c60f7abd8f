// A place on the screen that a finger can act on.
#pragma once

#include "CoreGraphics/CoreGraphics.h"

#include <functional>
#include <string>

#ifdef __OBJC__
@class UIView;
#else
class UIView;
#endif

namespace simulator {

struct Spot {
    UIView* view = nullptr; // what must lie on top there, for a finger to get at it; not retained
    std::string kind = {};  // "button", "cell", "switch", "textField", "tab", "bar"
    std::string label = {}; // what a person reads there, may be empty
    std::string state = {}; // of a switch "on" or "off", of a tab "selected", of a text field "secure"
    // What a tap does, where what is drawn is no view of its own; else the view's gestures and actions apply.
    std::function<void()> act = {};
    CGRect rect = {}; // in points of the screen, without what is cut off
};

} // namespace simulator
