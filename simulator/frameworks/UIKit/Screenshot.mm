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

void drawLabel(SvgCanvas& canvas, UIView* view) {
    auto* label = static_cast<UILabel*>(view);
    canvas.line([label bounds], toStd([label text]), {
        .size = [[label font] pointSize], .color = asSvg([label textColor]),
        .alignment = static_cast<int>([label textAlignment]), .bold = [[label font] isBold] != NO
    });
}

void drawTextField(SvgCanvas& canvas, UIView* view) {
    auto* field = static_cast<UITextField*>(view);
    const bool isEmpty = [[field text] length] == 0;
    const std::string typed =
        [field isSecureTextEntry] ? std::string([[field text] length], '*') : toStd([field text]);
    canvas.line([field bounds], isEmpty ? toStd([field placeholder]) : typed,
                {.size = [[field font] pointSize],
                 .color = isEmpty ? gray : asSvg([field textColor]),
                 .alignment = static_cast<int>([field textAlignment])});
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

// A line of an alert: what it says and how.
struct AlertLine {
    std::string text;
    SvgText style;
    CGFloat height;
};

std::vector<AlertLine> linesOf(UIAlertController* alert) {
    std::vector<AlertLine> lines;
    if ([alert title])
        lines.push_back({toStd([alert title]), {.size = 17, .alignment = 1, .bold = true}, 30});
    for (NSString* line in [[alert message] componentsSeparatedByString:@"\n"])
        lines.push_back({toStd(line), {.size = 13, .alignment = 1}, 20});
    for (UITextField* field in [alert textFields]) {
        const bool isEmpty = [[field text] length] == 0;
        const std::string typed =
            [field isSecureTextEntry] ? std::string([[field text] length], '*') : toStd([field text]);
        lines.push_back({"[ " + (isEmpty ? toStd([field placeholder]) : typed) + " ]",
                         {.size = 14, .color = isEmpty ? gray : black, .alignment = 1},
                         30});
    }
    for (UIAlertAction* action in [alert actions])
        lines.push_back({toStd([action title]),
                         {.size = 17,
                          .color = [action style] == UIAlertActionStyleDestructive ? red : blue,
                          .alignment = 1,
                          .bold = [action style] == UIAlertActionStyleCancel},
                         44});
    return lines;
}

// A panel in the middle of the screen, a sheet at its lower edge.
void drawAlert(SvgCanvas& canvas, UIAlertController* alert, CGSize screen) {
    constexpr CGFloat width = 270;
    constexpr CGFloat padding = 14;
    const std::vector<AlertLine> lines = linesOf(alert);
    CGFloat height = 2 * padding;
    for (const AlertLine& line : lines)
        height += line.height;
    const bool isSheet = [alert preferredStyle] == UIAlertControllerStyleActionSheet;
    const CGFloat top = isSheet ? screen.height - height - 10 : (screen.height - height) / 2;
    const CGRect panel = CGRectMake((screen.width - width) / 2, top, width, height);
    canvas.rectangle({CGPointZero, screen}, dimming);
    canvas.rectangle(panel, barColor, 12);
    CGFloat y = panel.origin.y + padding;
    for (const AlertLine& line : lines) {
        const CGRect rect = CGRectMake(panel.origin.x, y, width, line.height);
        if (line.height > 40) canvas.rectangle(CGRectMake(rect.origin.x, y, width, 0.5), lineColor);
        canvas.line(rect, line.text, line.style);
        y += line.height;
    }
}

void draw(SvgCanvas& canvas, UIView* view) {
    const ViewState& state = [view viewState];
    if (state.hidden || state.alpha < leastVisibleAlpha) return;
    if ([state.controller isKindOfClass:[UIAlertController class]])
        return drawAlert(canvas, static_cast<UIAlertController*>(state.controller), [view bounds].size);

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
