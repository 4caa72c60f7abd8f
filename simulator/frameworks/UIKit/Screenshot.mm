#import "UIKit/Screenshot.h"

#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"
#import "UIKit/internal/ImagePixels.h"
#import "UIKit/internal/LayoutQueue.h"
#import "UIKit/internal/Strings.h"
#import "UIKit/internal/Text.h"
#import "UIKit/internal/ViewState.h"
#include "UIKit/model/SvgCanvas.h"

#include <vector>

namespace simulator {

namespace {

constexpr SvgColor white = {1, 1, 1, 1};
constexpr SvgColor black = {0, 0, 0, 1};
constexpr SvgColor gray = {0.55, 0.55, 0.57, 1};
constexpr SvgColor blue = {0, 0.48, 1, 1};
constexpr SvgColor red = {1, 0.23, 0.19, 1};
constexpr SvgColor green = {0.3, 0.85, 0.39, 1};
constexpr SvgColor barColor = {0.97, 0.97, 0.97, 1};
constexpr SvgColor lineColor = {0.78, 0.78, 0.8, 1};
constexpr SvgColor dimming = {0, 0, 0, 0.4};
constexpr CGFloat leastVisibleAlpha = 0.01;

SvgColor asSvg(UIColor* color) {
    SvgColor result;
    [color getRed:&result.red green:&result.green blue:&result.blue alpha:&result.alpha];
    return result;
}

CGRect inset(CGRect rect, CGFloat side) { return CGRectInset(rect, side, 0); }

void drawPicture(SvgCanvas& canvas, CGRect rect, UIImage* image) {
    if (image) canvas.picture(rect, [image bitmap].png());
}

void drawImageView(SvgCanvas& canvas, UIView* view) {
    drawPicture(canvas, [view bounds], [static_cast<UIImageView*>(view) image]);
}

// The lines stand one below the other in the vertical middle; text of one line is cut off, not wrapped.
void drawLabel(SvgCanvas& canvas, UIView* view) {
    auto* label = static_cast<UILabel*>(view);
    const CGRect bounds = [label bounds];
    NSArray* lines = [label numberOfLines] == 1 ? [NSArray arrayWithObjects:[label text], nil]
                                                : linesOfText([label text], [label font], bounds.size.width);
    const CGFloat height = [[label font] lineHeight];
    CGFloat y = CGRectGetMidY(bounds) - height * static_cast<CGFloat>([lines count]) / 2;
    for (NSString* line in lines) {
        canvas.line(CGRectMake(bounds.origin.x, y, bounds.size.width, height), toStd(line),
                    {.size = [[label font] pointSize],
                     .color = asSvg([label textColor]),
                     .alignment = static_cast<int>([label textAlignment]),
                     .bold = [[label font] isBold] != NO});
        y += height;
    }
}

std::string shownText(UITextField* field) {
    if ([[field text] length] == 0) return toStd([field placeholder]);
    return [field isSecureTextEntry] ? std::string([[field text] length], '*') : toStd([field text]);
}

SvgColor textColor(UITextField* field) {
    return [[field text] length] == 0 ? gray : asSvg([field textColor]);
}

void drawTextField(SvgCanvas& canvas, UIView* view) {
    auto* field = static_cast<UITextField*>(view);
    canvas.line([field bounds], shownText(field), {
        .size = [[field font] pointSize], .color = textColor(field),
        .alignment = static_cast<int>([field textAlignment])
    });
}

void drawButton(SvgCanvas& canvas, UIView* view) {
    drawPicture(canvas, [view bounds], [static_cast<UIButton*>(view) currentBackgroundImage]);
}

void drawSwitch(SvgCanvas& canvas, UIView* view) {
    const CGRect bounds = [view bounds];
    const bool isOn = [static_cast<UISwitch*>(view) isOn];
    canvas.rectangle(bounds, isOn ? green : lineColor, bounds.size.height / 2);
    const CGFloat side = bounds.size.height - 4;
    canvas.rectangle(CGRectMake(isOn ? bounds.size.width - side - 2 : 2, 2, side, side), white, side / 2);
}

void drawIndicator(SvgCanvas& canvas, UIView* view) {
    canvas.rectangle([view bounds], { 0, 0, 0, 0 }, [view bounds].size.width / 2, gray);
}

void drawEffect(SvgCanvas& canvas, UIView* view) {
    UIVisualEffect* effect = [static_cast<UIVisualEffectView*>(view) effect];
    const bool isDark = [effect isKindOfClass:[UIBlurEffect class]] &&
                        [static_cast<UIBlurEffect*>(effect) style] == UIBlurEffectStyleDark;
    canvas.rectangle([view bounds], isDark ? SvgColor{0.1, 0.1, 0.1, 0.8} : SvgColor{0.95, 0.95, 0.95, 0.8},
                     [[view layer] cornerRadius]);
}

void drawTableCell(SvgCanvas& canvas, UIView* view) {
    const CGRect bounds = [view bounds];
    canvas.rectangle(CGRectMake(0, bounds.size.height - 1, bounds.size.width, 1), lineColor);
    if ([static_cast<UITableViewCell*>(view) accessoryType] == UITableViewCellAccessoryDisclosureIndicator)
        canvas.line(inset(bounds, 12), ">", {.color = lineColor, .alignment = 2});
}

// Buttons from the left edge on, or towards the right edge.
void drawItems(SvgCanvas& canvas, CGRect bar, NSArray* items, bool fromTheRight) {
    CGFloat x = fromTheRight ? CGRectGetMaxX(bar) - 10 : bar.origin.x + 10;
    for (UIBarButtonItem* item in items) {
        NSString* title = [item title] ? [item title] : @"o"; // something to see for a picture
        const CGFloat width = [title sizeWithFont:[UIFont systemFontOfSize:17]].width;
        const CGRect rect = CGRectMake(fromTheRight ? x - width : x, bar.origin.y, width, bar.size.height);
        canvas.line(rect, toStd(title), {.color = [item isEnabled] ? blue : gray, .alignment = 1});
        x += fromTheRight ? -width - 16 : width + 16;
    }
}

void drawNavigationBar(SvgCanvas& canvas, UIView* view) {
    auto* bar = static_cast<UINavigationBar*>(view);
    const CGRect bounds = [bar bounds];
    canvas.rectangle(CGRectMake(0, -20, bounds.size.width, bounds.size.height + 20), barColor, 0, lineColor);
    UINavigationItem* item = [bar topItem];
    canvas.line(bounds, toStd([item title]), {.color = black, .alignment = 1, .bold = true});
    NSArray* left = [item leftBarButtonItems];
    if (!left && [bar backItem]) {
        NSString* back = [[bar backItem] title] ? [[bar backItem] title] : @"Back";
        canvas.line(inset(bounds, 10), "< " + toStd(back), {.color = blue});
    }
    drawItems(canvas, bounds, left, false);
    drawItems(canvas, bounds, [item rightBarButtonItems], true);
}

void drawToolbar(SvgCanvas& canvas, UIView* view) {
    canvas.rectangle([view bounds], barColor, 0, lineColor);
    drawItems(canvas, [view bounds], [static_cast<UIToolbar*>(view) items], false);
}

void drawTabBar(SvgCanvas& canvas, UIView* view) {
    auto* bar = static_cast<UITabBar*>(view);
    const CGRect bounds = [bar bounds];
    canvas.rectangle(bounds, barColor, 0, lineColor);
    const CGFloat width = bounds.size.width / static_cast<CGFloat>(MAX([[bar items] count], 1U));
    CGFloat x = 0;
    for (UITabBarItem* item in [bar items]) {
        canvas.line(CGRectMake(x, 0, width, bounds.size.height), toStd([item title]),
                    {.size = 13, .color = item == [bar selectedItem] ? blue : gray, .alignment = 1});
        x += width;
    }
}

struct Drawer {
    Class viewClass;
    void (*draw)(SvgCanvas& canvas, UIView* view);
};

// What each class draws of itself; all that fit count.
const std::vector<Drawer>& drawers() {
    static const std::vector<Drawer> all = {
        {[UIImageView class], drawImageView},
        {[UILabel class], drawLabel},
        {[UITextField class], drawTextField},
        {[UIButton class], drawButton},
        {[UISwitch class], drawSwitch},
        {[UIActivityIndicatorView class], drawIndicator},
        {[UIVisualEffectView class], drawEffect},
        {[UITableViewCell class], drawTableCell},
        {[UINavigationBar class], drawNavigationBar},
        {[UIToolbar class], drawToolbar},
        {[UITabBar class], drawTabBar},
    };
    return all;
}

// A line of a panel: what it says and how.
struct PanelLine {
    std::string text;
    SvgText style;
    CGFloat height;
};

constexpr CGFloat panelWidth = 270;
constexpr CGFloat panelPadding = 14;
constexpr CGFloat panelButtonHeight = 44;

PanelLine panelButton(NSString* title, SvgColor color, bool bold) {
    return {toStd(title), {.size = 17, .color = color, .alignment = 1, .bold = bold}, panelButtonHeight};
}

std::vector<PanelLine> linesOf(UIAlertController* alert) {
    std::vector<PanelLine> lines;
    const auto addText = [&lines](NSString* text, UIFont* font) {
        if (!text) return;
        for (NSString* line in linesOfText(text, font, panelWidth - 2 * panelPadding))
            lines.push_back({toStd(line),
                             {.size = [font pointSize], .alignment = 1, .bold = [font isBold] != NO},
                             [font lineHeight]});
    };
    addText([alert title], [UIFont boldSystemFontOfSize:17]);
    addText([alert message], [UIFont systemFontOfSize:13]);
    for (UITextField* field in [alert textFields])
        lines.push_back(
            {"[ " + shownText(field) + " ]", {.size = 14, .color = textColor(field), .alignment = 1}, 30});
    for (UIAlertAction* action in [alert actions]) {
        const bool destroys = [action style] == UIAlertActionStyleDestructive;
        lines.push_back(
            panelButton([action title], destroys ? red : blue, [action style] == UIAlertActionStyleCancel));
    }
    return lines;
}

std::vector<PanelLine> linesOf(UIActivityViewController* sheet) {
    std::vector<PanelLine> lines;
    for (UIActivity* activity in [sheet offeredActivities])
        lines.push_back(panelButton([activity activityTitle], blue, false));
    return lines;
}

// A panel over the dimmed screen: in the middle of it, or a sheet at its lower edge.
void drawPanel(SvgCanvas& canvas, CGSize screen, const std::vector<PanelLine>& lines, bool isSheet) {
    CGFloat height = 2 * panelPadding;
    for (const PanelLine& line : lines)
        height += line.height;
    const CGFloat top = isSheet ? screen.height - height - 10 : (screen.height - height) / 2;
    const CGRect panel = CGRectMake((screen.width - panelWidth) / 2, top, panelWidth, height);
    canvas.rectangle({CGPointZero, screen}, dimming);
    canvas.rectangle(panel, barColor, 12);
    CGFloat y = panel.origin.y + panelPadding;
    for (const PanelLine& line : lines) {
        const CGRect rect = CGRectMake(panel.origin.x, y, panelWidth, line.height);
        if (line.height == panelButtonHeight)
            canvas.rectangle(CGRectMake(rect.origin.x, y, panelWidth, 0.5), lineColor);
        canvas.line(rect, line.text, line.style);
        y += line.height;
    }
}

// Whether the controller is one that shows a panel instead of a view of its own.
bool drawsPanel(SvgCanvas& canvas, UIViewController* controller, CGSize screen) {
    if ([controller isKindOfClass:[UIAlertController class]]) {
        auto* alert = static_cast<UIAlertController*>(controller);
        drawPanel(canvas, screen, linesOf(alert),
                  [alert preferredStyle] == UIAlertControllerStyleActionSheet);
        return true;
    }
    if ([controller isKindOfClass:[UIActivityViewController class]]) {
        drawPanel(canvas, screen, linesOf(static_cast<UIActivityViewController*>(controller)), true);
        return true;
    }
    return false;
}

void draw(SvgCanvas& canvas, UIView* view) {
    const ViewState& state = [view viewState];
    if (state.hidden || state.alpha < leastVisibleAlpha) return;
    if (drawsPanel(canvas, state.controller, [view bounds].size)) return;

    const CGRect bounds = state.geometry.bounds();
    const CGPoint origin = state.geometry.toSuperview(CGPointZero);
    const bool clips = [view clipsToBounds] || [view isKindOfClass:[UIScrollView class]] ||
                       [view isKindOfClass:[UILabel class]];
    canvas.beginGroup(origin, state.alpha, clips ? std::optional(bounds) : std::nullopt);
    if (state.backgroundColor)
        canvas.rectangle(bounds, asSvg(state.backgroundColor.get()), [[view layer] cornerRadius]);
    for (const Drawer& each : drawers())
        if ([view isKindOfClass:each.viewClass]) each.draw(canvas, view);
    for (UIView* subview in [view subviews])
        draw(canvas, subview);
    canvas.endGroup();
}

} // namespace

std::string screenshotAsSvg() {
    layoutWindows();
    const CGRect screen = [[UIScreen mainScreen] bounds];
    SvgCanvas canvas(screen.size);
    canvas.rectangle(screen, white);
    if (UIWindow* window = [[UIApplication sharedApplication] keyWindow]) draw(canvas, window);
    return canvas.document();
}

} // namespace simulator
