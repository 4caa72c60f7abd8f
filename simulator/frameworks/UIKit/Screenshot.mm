#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"
#import "UIKit/internal/ActionTargets.h"
#import "UIKit/internal/Casts.h"
#import "UIKit/internal/ListView.h"
#import "UIKit/internal/Text.h"
#import "UIKit/internal/ViewInternals.h"
#include "UIKit/model/SvgCanvas.h"
#include "device/strings.h"

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
constexpr SvgColor blurColor = {0.1, 0.1, 0.1, 0.8};
constexpr CGFloat leastVisibleAlpha = 0.01;

SvgColor asSvg(UIColor* color) {
    SvgColor result;
    [color getRed:&result.red green:&result.green blue:&result.blue alpha:&result.alpha];
    return result;
}

void drawPicture(SvgCanvas& canvas, CGRect rect, UIImage* image) {
    if (image != nil)
        canvas.picture(rect, text([UIImagePNGRepresentation(image) base64EncodedStringWithOptions:0]));
}

// The lines stand one below the other in the vertical middle; text of one line is cut off, not wrapped.
void drawLabel(SvgCanvas& canvas, UILabel* label) {
    const CGRect bounds = [label bounds];
    NSArray* lines = [label numberOfLines] == 1 ? [NSArray arrayWithObjects:[label text], nil]
                                                : linesOfText([label text], [label font], bounds.size.width);
    const CGFloat height = [[label font] lineHeight];
    CGFloat y = CGRectGetMidY(bounds) - height * static_cast<CGFloat>([lines count]) / 2;
    for (NSString* line in lines) {
        canvas.line(CGRectMake(bounds.origin.x, y, bounds.size.width, height), text(line),
                    {.size = [[label font] pointSize],
                     .color = asSvg([label textColor]),
                     .alignment = static_cast<int>([label textAlignment]),
                     .bold = [[label font] isBold] != NO});
        y += height;
    }
}

bool isEmpty(UITextField* field) { return [[field text] length] == 0; }

std::string shownText(UITextField* field) {
    if (isEmpty(field)) return text([field placeholder]);
    return [field isSecureTextEntry] ? std::string([[field text] length], '*') : text([field text]);
}

void drawTextField(SvgCanvas& canvas, UITextField* field) {
    canvas.line([field bounds], shownText(field),
                { .size = [[field font] pointSize], .color = isEmpty(field) ? gray : black });
}

void drawSwitch(SvgCanvas& canvas, UISwitch* control) {
    const CGRect bounds = [control bounds];
    canvas.rectangle(bounds, [control isOn] ? green : lineColor, bounds.size.height / 2);
    const CGFloat side = bounds.size.height - 4;
    canvas.rectangle(CGRectMake([control isOn] ? bounds.size.width - side - 2 : 2, 2, side, side), white,
                     side / 2);
}

void drawTableCell(SvgCanvas& canvas, UITableViewCell* cell) {
    const CGRect bounds = [cell bounds];
    canvas.rectangle(CGRectMake(0, bounds.size.height - 1, bounds.size.width, 1), lineColor);
    if ([cell accessoryType] == UITableViewCellAccessoryDisclosureIndicator)
        canvas.line(CGRectInset(bounds, 12, 0), ">", {.color = lineColor, .alignment = 2});
}

// Buttons from the left edge on, or towards the right edge.
void drawItems(SvgCanvas& canvas, UIView* bar, NSArray* items, bool fromTheRight) {
    const CGRect bounds = [bar bounds];
    CGFloat x = fromTheRight ? CGRectGetMaxX(bounds) - 10 : bounds.origin.x + 10;
    for (UIBarButtonItem* item in items) {
        NSString* title = [item title];
        const CGFloat width =
            sizeOfText(title, [UIFont systemFontOfSize : 17], { CGFLOAT_MAX, CGFLOAT_MAX }).width;
        const CGRect rect =
            CGRectMake(fromTheRight ? x - width : x, bounds.origin.y, width, bounds.size.height);
        canvas.line(rect, text(title), {.color = blue, .alignment = 1});
        canvas.spot(CGRectInset(rect, -8, 0),
                    {.view = bar, .kind = "button", .label = text(title), .act = [item] {
                         sendAction([item target], [item action], item);
                     }});
        x += fromTheRight ? -width - 16 : width + 16;
    }
}

void drawNavigationBar(SvgCanvas& canvas, UINavigationBar* bar) {
    const CGRect bounds = [bar bounds];
    canvas.rectangle(CGRectMake(0, -20, bounds.size.width, bounds.size.height + 20), barColor, 0, lineColor);
    UINavigationItem* item = [bar topItem];
    canvas.line(bounds, text([item title]), {.color = black, .alignment = 1, .bold = true});
    NSArray* left = [item leftBarButtonItems];
    const NSUInteger depth = [[bar items] count];
    if (left == nil && depth > 1) {
        UINavigationItem* back = [[bar items] objectAtIndex:depth - 2];
        canvas.line(CGRectInset(bounds, 10, 0), "< " + text([back title]), {.color = blue});
        UINavigationController* controller = as<UINavigationController>([bar _viewControllerForAncestor]);
        canvas.spot(
            CGRectMake(0, 0, bounds.size.width / 3, bounds.size.height),
            {.view = bar, .kind = "button", .label = "Back to " + text([back title]), .act = [controller] {
                 [controller popViewControllerAnimated:YES];
             }});
    }
    drawItems(canvas, bar, left, false);
    drawItems(canvas, bar, [item rightBarButtonItems], true);
}

void drawTabBar(SvgCanvas& canvas, UITabBar* bar) {
    const CGRect bounds = [bar bounds];
    canvas.rectangle(bounds, barColor, 0, lineColor);
    const CGFloat width = bounds.size.width / static_cast<CGFloat>(MAX([[bar items] count], 1U));
    CGFloat x = 0;
    for (UITabBarItem* item in [bar items]) {
        const CGRect tab = CGRectMake(x, 0, width, bounds.size.height);
        const bool isSelected = item == [bar selectedItem];
        canvas.line(tab, text([item title]), {.size = 13, .color = isSelected ? blue : gray, .alignment = 1});
        UITabBarController* controller = as<UITabBarController>([bar _viewControllerForAncestor]);
        canvas.spot(tab, {.view = bar,
                          .kind = "tab",
                          .label = text([item title]),
                          .state = isSelected ? "selected" : "",
                          .act = [controller, item] { [controller tapItem:item]; }});
        x += width;
    }
}

// What a view shows of itself, below its subviews.
void drawContent(SvgCanvas& canvas, UIView* view) {
    const CGRect bounds = [view bounds];
    if (UIImageView* picture = as<UIImageView>(view)) drawPicture(canvas, bounds, [picture image]);
    if (UILabel* label = as<UILabel>(view)) drawLabel(canvas, label);
    if (UITextField* field = as<UITextField>(view)) drawTextField(canvas, field);
    if (UISwitch* control = as<UISwitch>(view)) drawSwitch(canvas, control);
    if (UITableViewCell* cell = as<UITableViewCell>(view)) drawTableCell(canvas, cell);
    if (UINavigationBar* bar = as<UINavigationBar>(view)) drawNavigationBar(canvas, bar);
    if (UITabBar* bar = as<UITabBar>(view)) drawTabBar(canvas, bar);
    if (UIToolbar* bar = as<UIToolbar>(view)) {
        canvas.rectangle(bounds, barColor, 0, lineColor);
        drawItems(canvas, bar, [bar items], false);
    }
    if (as<UIActivityIndicatorView>(view) != nil)
        canvas.rectangle(bounds, {0, 0, 0, 0}, bounds.size.width / 2, gray);
    if (as<UIVisualEffectView>(view) != nil) canvas.rectangle(bounds, blurColor, [[view layer] cornerRadius]);
}

// A line of a panel: what it says and how, and what a tap on it does.
struct PanelLine {
    std::string text;
    SvgText style;
    CGFloat height;
    Spot spot = {}; // of no kind where there is nothing to tap
};

constexpr CGFloat panelWidth = 270;
constexpr CGFloat panelPadding = 14;
constexpr CGFloat panelButtonHeight = 44;

PanelLine panelButton(NSString* title, SvgColor color, bool bold, std::function<void()> act) {
    return {text(title),
            {.size = 17, .color = color, .alignment = 1, .bold = bold},
            panelButtonHeight,
            {.kind = "button", .label = text(title), .act = std::move(act)}};
}

std::vector<PanelLine> linesOf(UIAlertController* alert) {
    std::vector<PanelLine> lines;
    const auto add = [&lines](NSString* paragraph, UIFont* font) {
        if (paragraph == nil) return;
        for (NSString* line in linesOfText(paragraph, font, panelWidth - 2 * panelPadding))
            lines.push_back({text(line),
                             {.size = [font pointSize], .alignment = 1, .bold = [font isBold] != NO},
                             [font lineHeight]});
    };
    add([alert title], [UIFont boldSystemFontOfSize:17]);
    add([alert message], [UIFont systemFontOfSize:13]);
    for (UITextField* field in [alert textFields])
        lines.push_back({"[ " + shownText(field) + " ]",
                         {.size = 14, .color = isEmpty(field) ? gray : black, .alignment = 1},
                         30,
                         {.kind = "textField",
                          .label = text([field placeholder]),
                          .state = [field isSecureTextEntry] ? "secure" : ""}});
    for (UIAlertAction* action in [alert actions]) {
        const bool destroys = [action style] == UIAlertActionStyleDestructive;
        lines.push_back(panelButton([action title], destroys ? red : blue,
                                    [action style] == UIAlertActionStyleCancel,
                                    [alert, action] { [alert tapAction:action]; }));
    }
    return lines;
}

std::vector<PanelLine> linesOf(UIActivityViewController* sheet) {
    std::vector<PanelLine> lines;
    for (UISaveToCameraRollActivity* activity in [sheet offeredActivities])
        lines.push_back(panelButton([activity activityTitle], blue, false, [sheet, activity] {
            [sheet chooseActivityWithTitle:[activity activityTitle]];
        }));
    lines.push_back(panelButton(@"Cancel", blue, true,
                                [sheet] { [sheet dismissViewControllerAnimated:YES completion:nil]; }));
    return lines;
}

// A panel over the dimmed screen: in the middle of it, or a sheet at its lower edge.
void drawPanel(SvgCanvas& canvas, UIView* view, const std::vector<PanelLine>& lines, bool isSheet) {
    const CGSize screen = [view bounds].size;
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
        if (!line.spot.kind.empty()) {
            Spot spot = line.spot;
            spot.view = view;
            canvas.spot(rect, std::move(spot));
        }
        y += line.height;
    }
}

// Alerts and share sheets show a panel instead of a view of their own.
bool drawsPanel(SvgCanvas& canvas, UIView* view) {
    UIViewController* controller = [view _viewControllerForAncestor];
    if (controller == nil || [controller viewIfLoaded] != view) return false;
    UIAlertController* alert = as<UIAlertController>(controller);
    UIActivityViewController* sheet = as<UIActivityViewController>(controller);
    if (alert != nil)
        drawPanel(canvas, view, linesOf(alert), [alert preferredStyle] == UIAlertControllerStyleActionSheet);
    if (sheet != nil) drawPanel(canvas, view, linesOf(sheet), true);
    return alert != nil || sheet != nil;
}

// What a person reads in the view, the title of an album's cell first.
std::string wordsIn(UIView* view) {
    UILabel* label = as<UILabel>(view);
    UITextField* field = as<UITextField>(view);
    std::string words = label != nil ? text([label text]) : field != nil ? shownText(field) : "";
    for (UIView* subview in [view subviews]) {
        if ([subview isHidden] || as<UIControl>(subview) != nil) continue;
        const std::string more = wordsIn(subview);
        words += (words.empty() || more.empty() ? "" : ", ") + more;
    }
    return words;
}

std::string labelOf(UIControl* control) {
    std::string words = wordsIn(control);
    // A switch is called what its row says.
    if (words.empty() && as<UISwitch>(control) != nil) words = wordsIn([control superview]);
    if (words.empty()) words = text(NSStringFromClass([control class]));
    return words;
}

// Whether a finger can act on the view itself: a control, a cell or something with gestures of its own.
void addSpot(SvgCanvas& canvas, UIView* view) {
    const CGRect bounds = [view bounds];
    if (UISwitch* control = as<UISwitch>(view))
        canvas.spot(bounds, {.view = view,
                             .kind = "switch",
                             .label = labelOf(control),
                             .state = [control isOn] ? "on" : "off"});
    else if (UIControl* control = as<UIControl>(view))
        canvas.spot(bounds, {.view = view, .kind = "button", .label = labelOf(control)});
    else if (as<ListCell>(view) != nil)
        canvas.spot(bounds, {.view = view, .kind = "cell", .label = wordsIn(view)});
    else if (UINavigationBar* bar = as<UINavigationBar>(view))
        canvas.spot(bounds, {.view = view, .kind = "bar", .label = text([[bar topItem] title])});
}

void draw(SvgCanvas& canvas, UIView* view) {
    if ([view isHidden] || [view alpha] < leastVisibleAlpha || drawsPanel(canvas, view)) return;
    const CGRect bounds = [view bounds];
    const bool clips = [view clipsToBounds] || as<UIScrollView>(view) != nil || as<UILabel>(view) != nil;
    canvas.beginGroup([view convertPoint:CGPointZero toView:[view superview]], [view alpha],
                      clips ? std::optional(bounds) : std::nullopt);
    if (UIColor* color = [view backgroundColor])
        canvas.rectangle(bounds, asSvg(color), [[view layer] cornerRadius]);
    addSpot(canvas, view);
    drawContent(canvas, view);
    for (UIView* subview in [view subviews])
        draw(canvas, subview);
    canvas.endGroup();
}

} // namespace

Picture screenPicture() {
    layoutWindows();
    const CGRect screen = [[UIScreen mainScreen] bounds];
    SvgCanvas canvas(screen.size);
    canvas.rectangle(screen, white);
    if (UIWindow* window = [[UIApplication sharedApplication] keyWindow]) draw(canvas, window);
    return {canvas.document(), canvas.spots()};
}

std::string screenshotAsSvg() { return screenPicture().svg; }

} // namespace simulator
