// Alerts, action sheets and share sheets: what stands where in them, and how they look.
#pragma once

#import "UIKit/UIViewController.h"

#include "UIKit/model/SvgCanvas.h"

#include <string>

@class UITextField;

namespace simulator {

// Draws the panels over the dimmed screen; false for a controller that has none.
bool drawPanels(SvgCanvas& canvas, UIViewController* controller, CGSize screen);

// What a field shows of its text.
std::string shownText(UITextField* field);

} // namespace simulator
