#import "UIKit/internal/Bars.h"

#import "UIKit/UIKit.h"
#import "UIKit/internal/ActionTargets.h"
#import "UIKit/internal/Casts.h"
#import "UIKit/internal/Containers.h"
#import "UIKit/internal/Palette.h"
#import "UIKit/internal/Text.h"
#include "UIKit/model/Outlines.h"
#include "device/strings.h"

#include <algorithm>

namespace simulator {

namespace {

using namespace palette;

constexpr CGFloat edge = 10;
constexpr CGFloat gap = 16;
constexpr CGFloat symbolSide = 24;
constexpr CGFloat chevronWidth = 16;
constexpr CGFloat titleSize = 17;
constexpr CGFloat statusBarHeight = 20;

CGFloat widthOf(const std::string& title, bool isBold = false) {
    UIFont* font = isBold ? [UIFont boldSystemFontOfSize:titleSize] : [UIFont systemFontOfSize:titleSize];
    return sizeOfText(string(title), font, {CGFLOAT_MAX, CGFLOAT_MAX}).width;
}

CGFloat widthOf(UIBarItem* item) { return [item image] != nil ? symbolSide : widthOf(text([item title])); }

BarButton button(UIBarItem* item, CGFloat x, CGFloat width, UIView* bar) {
    return {item, CGRectMake(x, 0, width, [bar bounds].size.height), text([item title])};
}

std::vector<BarButton> buttonsOfNavigationBar(UINavigationBar* bar) {
    std::vector<BarButton> buttons;
    UINavigationItem* item = [bar topItem];
    const NSUInteger depth = [[bar items] count];
    CGFloat x = edge;
    if (depth > 1 && ([item leftBarButtonItems] == nil || [item leftItemsSupplementBackButton])) {
        UINavigationItem* back = [[bar items] objectAtIndex:depth - 2];
        BarButton way = button(nil, edge, 0, bar);
        way.title = text([back title]);
        way.frame.size.width = chevronWidth + widthOf(way.title);
        buttons.push_back(way);
        x += way.frame.size.width + gap;
    }
    for (UIBarButtonItem* each in [item leftBarButtonItems]) {
        buttons.push_back(button(each, x, widthOf(each), bar));
        x += widthOf(each) + gap;
    }
    x = [bar bounds].size.width - edge;
    for (UIBarButtonItem* each in [item rightBarButtonItems]) {
        x -= widthOf(each);
        buttons.push_back(button(each, x, widthOf(each), bar));
        x -= gap;
    }
    return buttons;
}

// The first at the left, the last at the right, the same room between all.
std::vector<BarButton> buttonsOfToolbar(UIToolbar* bar) {
    std::vector<BarButton> buttons;
    CGFloat room = [bar bounds].size.width - 2 * edge;
    for (UIBarButtonItem* each in [bar items])
        room -= widthOf(each);
    const auto count = static_cast<CGFloat>([[bar items] count]);
    CGFloat x = edge;
    for (UIBarButtonItem* each in [bar items]) {
        buttons.push_back(button(each, x, widthOf(each), bar));
        x += widthOf(each) + room / std::max<CGFloat>(count - 1, 1);
    }
    return buttons;
}

std::vector<BarButton> buttonsOfTabBar(UITabBar* bar) {
    std::vector<BarButton> buttons;
    const CGFloat width =
        [bar bounds].size.width / static_cast<CGFloat>(std::max<NSUInteger>([[bar items] count], 1));
    for (UITabBarItem* each in [bar items])
        buttons.push_back(button(each, width * static_cast<CGFloat>(buttons.size()), width, bar));
    return buttons;
}

void drawButton(SvgCanvas& canvas, const BarButton& button) {
    CGRect frame = button.frame;
    if (button.item == nil) {
        canvas.symbol(CGRectMake(frame.origin.x - 6, 0, symbolSide, frame.size.height), outline::back, blue);
        frame.origin.x += chevronWidth;
    }
    if (const char* symbol = [[button.item image] outline])
        canvas.symbol(CGRectMake(frame.origin.x, 0, symbolSide, frame.size.height), symbol, blue);
    else
        canvas.line(frame, button.title, {.size = titleSize, .color = blue});
}

// In the middle of the bar, or in the middle of what the buttons leave.
void drawTitle(SvgCanvas& canvas, CGRect bar, const std::string& title,
               const std::vector<BarButton>& buttons) {
    CGFloat left = 0;
    CGFloat right = bar.size.width;
    for (const BarButton& each : buttons) {
        if (CGRectGetMidX(each.frame) < bar.size.width / 2)
            left = std::max(left, CGRectGetMaxX(each.frame));
        else
            right = std::min(right, CGRectGetMinX(each.frame));
    }
    const CGFloat half = widthOf(title, true) / 2;
    const CGFloat middle = bar.size.width / 2;
    const bool fits = middle - half > left && middle + half < right;
    canvas.line(fits ? bar : CGRectMake(left, 0, right - left, bar.size.height), title,
                {.size = titleSize, .color = black, .alignment = 1, .bold = true});
}

void drawTab(SvgCanvas& canvas, const BarButton& button, bool isSelected) {
    const SvgColor color = isSelected ? blue : gray;
    CGRect frame = button.frame;
    if (const char* symbol = [[button.item image] outline])
        canvas.symbol(CGRectMake(frame.origin.x, 4, frame.size.width, 26), symbol, color);
    frame.origin.y += frame.size.height - 16;
    frame.size.height = 12;
    canvas.line(frame, button.title, {.size = 10, .color = color, .alignment = 1});
}

Spot spotOf(UIView* bar, const BarButton& button) {
    Spot spot = {.view = bar, .kind = "button", .label = button.title};
    if (UITabBar* tabs = as<UITabBar>(bar)) {
        auto* item = static_cast<UITabBarItem*>(button.item);
        UITabBarController* controller = as<UITabBarController>([bar _viewControllerForAncestor]);
        spot.kind = "tab";
        spot.state = item == [tabs selectedItem] ? "selected" : "";
        spot.act = [controller, item] { [controller tapItem:item]; };
    } else if (UIBarButtonItem* item = as<UIBarButtonItem>(button.item)) {
        spot.act = [item] { sendAction([item target], [item action], item); };
    } else {
        UINavigationController* controller = as<UINavigationController>([bar _viewControllerForAncestor]);
        spot.label = "Back to " + button.title;
        spot.act = [controller] { [controller popViewControllerAnimated:YES]; };
    }
    return spot;
}

} // namespace

std::vector<BarButton> buttonsOf(UIView* bar) {
    if (UINavigationBar* navigation = as<UINavigationBar>(bar)) return buttonsOfNavigationBar(navigation);
    if (UIToolbar* toolbar = as<UIToolbar>(bar)) return buttonsOfToolbar(toolbar);
    if (UITabBar* tabs = as<UITabBar>(bar)) return buttonsOfTabBar(tabs);
    return {};
}

void drawBar(SvgCanvas& canvas, UIView* bar) {
    const std::vector<BarButton> buttons = buttonsOf(bar);
    CGRect area = [bar bounds];
    UINavigationBar* navigation = as<UINavigationBar>(bar);
    UITabBar* tabs = as<UITabBar>(bar);
    if (navigation != nil) {
        area.origin.y -= statusBarHeight;
        area.size.height += statusBarHeight;
    }
    canvas.rectangle(area, palette::bar);
    const CGFloat lineY = navigation != nil ? CGRectGetMaxY(area) - 0.5 : 0;
    canvas.rectangle(CGRectMake(0, lineY, area.size.width, 0.5), separator);
    if (navigation != nil) drawTitle(canvas, [bar bounds], text([[navigation topItem] title]), buttons);
    for (const BarButton& each : buttons) {
        if (tabs != nil)
            drawTab(canvas, each, each.item == [tabs selectedItem]);
        else
            drawButton(canvas, each);
        canvas.spot(tabs != nil ? each.frame : CGRectInset(each.frame, -8, 0), spotOf(bar, each));
    }
}

void drawStatusBar(SvgCanvas& canvas, CGFloat width, UIViewController* shown) {
    if ([shown prefersStatusBarHidden]) return;
    const SvgColor color = [shown preferredStatusBarStyle] == UIStatusBarStyleLightContent ? white : black;
    for (int dot = 0; dot < 5; ++dot)
        canvas.rectangle(CGRectMake(6 + 7 * dot, 7.5, 5.5, 5.5), dot < 4 ? color : lightGray, 2.75);
    canvas.line(CGRectMake(44, 0, 80, statusBarHeight), "Carrier", {.size = 12, .color = color});
    canvas.line(CGRectMake(0, 0, width, statusBarHeight), "9:41 AM",
                {.size = 12, .color = color, .alignment = 1, .bold = true});
    const CGRect battery = CGRectMake(width - 31, 5.5, 22, 9.5);
    canvas.border(battery, color, 1, 2);
    canvas.rectangle(CGRectInset(battery, 2, 2), color, 0.5);
    canvas.rectangle(CGRectMake(width - 8.5, 8.5, 1.5, 3.5), color);
}

} // namespace simulator
