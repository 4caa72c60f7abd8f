// Navigation bars, toolbars and tab bars: where their buttons are, and how they look.
#pragma once

#import "UIKit/UIBarButtonItem.h"
#import "UIKit/UIView.h"

#include "UIKit/model/SvgCanvas.h"

#include <string>
#include <vector>

namespace simulator {

struct BarButton {
    UIBarItem* item; // nil for the way back
    CGRect frame;    // in the bar
    std::string title;
};

// Empty for a view that is no bar.
std::vector<BarButton> buttonsOf(UIView* bar);

// Draws the bar in its own coordinates.
void drawBar(SvgCanvas& canvas, UIView* bar);

// The system's bar at the top of the screen, as the controller wants it; the clock always says 9:41.
void drawStatusBar(SvgCanvas& canvas, CGFloat width, UIViewController* shown);

} // namespace simulator
