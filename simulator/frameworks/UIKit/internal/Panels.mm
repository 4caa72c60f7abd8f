#import "UIKit/internal/Panels.h"

#import "UIKit/UIKit.h"
#import "UIKit/internal/Bars.h"
#import "UIKit/internal/Casts.h"
#import "UIKit/internal/Containers.h"
#import "UIKit/internal/Palette.h"
#import "UIKit/internal/Text.h"
#include "UIKit/model/Outlines.h"
#include "device/strings.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

namespace simulator {

namespace {

using namespace palette;

constexpr CGFloat statusBarHeight = 20;
constexpr CGFloat alertWidth = 270;
constexpr CGFloat popoverWidth = 304;
constexpr CGFloat sheetMargin = 10;
constexpr CGFloat gapAboveCancel = 8;
constexpr CGFloat widestSheet = 414;
constexpr CGFloat padding = 16;
constexpr CGFloat fieldHeight = 30;
constexpr CGFloat alertButtonHeight = 44;
constexpr CGFloat sheetButtonHeight = 57;
constexpr CGFloat activitySide = 60;
constexpr CGFloat arrowHeight = 13;
constexpr CGFloat cornerRadius = 13;
constexpr SvgColor panelColor = {0.97, 0.97, 0.97, 0.97};

// A line of text, a field or a button.
struct PanelPart {
    CGRect frame = {}; // on the screen
    std::string text;
    SvgText style;
    Spot spot = {};                // what a finger does there; of no kind for text
    const char* outline = nullptr; // the symbol of an activity
};

struct Panel {
    CGRect frame = {};
    std::vector<PanelPart> parts;
    std::optional<CGPoint> arrow; // of a popover: what it points at
};

std::function<void()> tapOf(UIAlertController* alert, UIAlertAction* action) {
    return [alert, action] { [alert tapAction:action]; };
}

std::function<void()> dismissal(UIViewController* controller) {
    return [controller] { [controller dismissViewControllerAnimated:YES completion:nil]; };
}

// Fills a panel from the top down.
class PanelBuilder {
  public:
    explicit PanelBuilder(CGFloat width) { m_panel.frame.size.width = width; }

    void addSpace(CGFloat height) { m_panel.frame.size.height += height; }
    void addText(NSString* paragraph, UIFont* font, SvgColor color) {
        if ([paragraph length] == 0) return;
        for (NSString* each in linesOfText(paragraph, font, width() - 2 * padding))
            add({.text = text(each),
                 .style =
                     {.size = [font pointSize], .color = color, .alignment = 1, .bold = [font isBold] != NO}},
                [font lineHeight]);
    }
    void addField(UITextField* field) {
        const bool isEmpty = [[field text] length] == 0;
        add({.text = shownText(field),
             .style = {.size = 14, .color = isEmpty ? gray : black},
             .spot = {.kind = "textField",
                      .label = text([field placeholder]),
                      .state = [field isSecureTextEntry] ? "secure" : ""}},
            fieldHeight);
        PanelPart& part = m_panel.parts.back();
        part.frame = CGRectInset(part.frame, padding, 3);
    }
    void addButton(NSString* title, UIAlertActionStyle style, CGFloat height, CGFloat size,
                   std::function<void()> act) {
        add({.text = text(title),
             .style = {.size = size,
                       .color = style == UIAlertActionStyleDestructive ? red : blue,
                       .alignment = 1,
                       .bold = style == UIAlertActionStyleCancel},
             .spot = {.kind = "button", .label = text(title), .act = std::move(act)}},
            height);
    }
    // Side by side, in the same order.
    void addButtonPair(UIAlertController* alert, UIAlertAction* left, UIAlertAction* right) {
        for (UIAlertAction* action : {left, right})
            addButton([action title], [action style], alertButtonHeight, 17, tapOf(alert, action));
        addSpace(-alertButtonHeight);
        PanelPart& last = m_panel.parts.back();
        PanelPart& first = *std::prev(m_panel.parts.end(), 2);
        first.frame.size.width = last.frame.size.width = width() / 2;
        last.frame.origin = {width() / 2, first.frame.origin.y};
    }
    void addActivity(NSString* title, std::function<void()> act) {
        const CGFloat x = padding + static_cast<CGFloat>(m_panel.parts.size()) * (activitySide + padding);
        m_panel.parts.push_back({.frame = CGRectMake(x, padding, activitySide, activitySide + 34),
                                 .text = text(title),
                                 .style = {.size = 11, .color = black, .alignment = 1},
                                 .spot = {.kind = "button", .label = text(title), .act = std::move(act)},
                                 .outline = outline::save});
        m_panel.frame.size.height = activitySide + 34 + 2 * padding;
    }

    CGFloat width() const { return m_panel.frame.size.width; }
    CGFloat height() const { return m_panel.frame.size.height; }
    Panel at(CGPoint origin) const {
        Panel panel = m_panel;
        panel.frame.origin = origin;
        for (PanelPart& part : panel.parts) {
            part.frame.origin.x += origin.x;
            part.frame.origin.y += origin.y;
        }
        return panel;
    }

  private:
    void add(PanelPart part, CGFloat height) {
        part.frame = CGRectMake(0, m_panel.frame.size.height, width(), height);
        m_panel.parts.push_back(part);
        m_panel.frame.size.height += height;
    }

    Panel m_panel = {};
};

UIAlertAction* cancelOf(UIAlertController* alert) {
    for (UIAlertAction* action in [alert actions])
        if ([action style] == UIAlertActionStyleCancel) return action;
    return nil;
}

std::vector<UIAlertAction*> othersOf(UIAlertController* alert) {
    std::vector<UIAlertAction*> others;
    for (UIAlertAction* action in [alert actions])
        if ([action style] != UIAlertActionStyleCancel) others.push_back(action);
    return others;
}

PanelBuilder alertPanel(UIAlertController* alert) {
    PanelBuilder panel(alertWidth);
    panel.addSpace(padding);
    panel.addText([alert title], [UIFont boldSystemFontOfSize:17], black);
    panel.addText([alert message], [UIFont systemFontOfSize:13], black);
    panel.addSpace(padding / 2);
    for (UITextField* field in [alert textFields])
        panel.addField(field);
    panel.addSpace(padding / 2);
    UIAlertAction* cancel = cancelOf(alert);
    std::vector<UIAlertAction*> actions = othersOf(alert);
    if (cancel != nil && actions.size() == 1) {
        panel.addButtonPair(alert, cancel, actions.front());
        return panel;
    }
    if (cancel != nil) actions.push_back(cancel);
    for (UIAlertAction* action : actions)
        panel.addButton([action title], [action style], alertButtonHeight, 17, tapOf(alert, action));
    return panel;
}

// Without its cancel button. Many buttons become lower instead of scrolling, so that all are to be seen.
PanelBuilder sheetPanel(UIAlertController* alert, CGFloat width, CGFloat room) {
    PanelBuilder panel(width);
    if ([[alert title] length] > 0 || [[alert message] length] > 0) {
        panel.addSpace(padding);
        panel.addText([alert title], [UIFont boldSystemFontOfSize:13], gray);
        panel.addText([alert message], [UIFont systemFontOfSize:13], gray);
        panel.addSpace(padding);
    }
    const std::vector<UIAlertAction*> actions = othersOf(alert);
    const CGFloat height =
        std::min(sheetButtonHeight,
                 (room - panel.height()) / std::max<CGFloat>(static_cast<CGFloat>(actions.size()), 1));
    for (UIAlertAction* action : actions)
        panel.addButton([action title], [action style], height, std::min<CGFloat>(20, height * 0.6),
                        tapOf(alert, action));
    return panel;
}

UIView* barWith(UIBarButtonItem* item, UIView* view, CGRect* frame) {
    for (const BarButton& each : buttonsOf(view)) {
        if (each.item != item) continue;
        *frame = each.frame;
        return view;
    }
    for (UIView* subview in [view subviews])
        if (UIView* bar = barWith(item, subview, frame)) return bar;
    return nil;
}

// What a popover points at, on the screen; empty where nothing is named.
CGRect anchorOf(UIViewController* controller) {
    UIPopoverPresentationController* popover = [controller popoverPresentationController];
    CGRect anchor = [popover sourceRect];
    UIView* source = [popover sourceView];
    if (UIBarButtonItem* item = [popover barButtonItem])
        source = barWith(item, [[UIApplication sharedApplication] keyWindow], &anchor);
    if (source == nil) return CGRectZero;
    anchor.origin = [source convertPoint:anchor.origin toView:nil];
    return anchor;
}

// Below what it points at, or above where there is more room; over it where there is none.
Panel popover(const PanelBuilder& panel, CGRect anchor, CGSize screen) {
    const CGFloat middle =
        std::clamp<CGFloat>(CGRectGetMidX(anchor), sheetMargin, screen.width - sheetMargin);
    const bool isBelow = CGRectGetMidY(anchor) < screen.height / 2;
    const CGFloat tip = isBelow ? CGRectGetMaxY(anchor) : CGRectGetMinY(anchor);
    const CGFloat x =
        std::clamp(middle - panel.width() / 2, sheetMargin, screen.width - sheetMargin - panel.width());
    const CGFloat y = isBelow ? tip + arrowHeight : tip - arrowHeight - panel.height();
    const CGFloat lowest = screen.height - sheetMargin - panel.height();
    Panel placed = panel.at({x, std::clamp(y, std::min(statusBarHeight, lowest), lowest)});
    if (placed.frame.origin.y == y) placed.arrow = CGPointMake(middle, tip);
    return placed;
}

// At the lower edge of the screen, with the button that does nothing below it.
std::vector<Panel> bottomSheet(const PanelBuilder& panel, NSString* cancelTitle, std::function<void()> cancel,
                               CGSize screen) {
    const CGFloat x = (screen.width - panel.width()) / 2;
    CGFloat y = screen.height - sheetMargin;
    std::vector<Panel> panels;
    if (cancelTitle != nil) {
        PanelBuilder below(panel.width());
        below.addButton(cancelTitle, UIAlertActionStyleCancel, sheetButtonHeight, 20, std::move(cancel));
        y -= sheetButtonHeight;
        panels.push_back(below.at({x, y}));
        y -= gapAboveCancel;
    }
    panels.insert(panels.begin(), panel.at({x, y - panel.height()}));
    return panels;
}

std::vector<Panel> panelsOfAlert(UIAlertController* alert, CGSize screen) {
    if ([alert preferredStyle] == UIAlertControllerStyleAlert) {
        const PanelBuilder panel = alertPanel(alert);
        return {panel.at({(screen.width - panel.width()) / 2, (screen.height - panel.height()) / 2})};
    }
    const CGFloat room = screen.height - 2 * sheetMargin - sheetButtonHeight - gapAboveCancel - padding;
    if ([alert isShownAsPopover])
        return {popover(sheetPanel(alert, popoverWidth, room), anchorOf(alert), screen)};
    const CGFloat width = std::min(screen.width, widestSheet) - 2 * sheetMargin;
    UIAlertAction* cancel = cancelOf(alert);
    return bottomSheet(sheetPanel(alert, width, room), [cancel title], tapOf(alert, cancel), screen);
}

std::vector<Panel> panelsOfShareSheet(UIActivityViewController* sheet, CGSize screen) {
    const bool isPopover = [sheet isShownAsPopover];
    PanelBuilder panel(isPopover ? popoverWidth : std::min(screen.width, widestSheet) - 2 * sheetMargin);
    for (UISaveToCameraRollActivity* activity in [sheet offeredActivities])
        panel.addActivity([activity activityTitle],
                          [sheet, activity] { [sheet chooseActivityWithTitle:[activity activityTitle]]; });
    if (isPopover) return {popover(panel, anchorOf(sheet), screen)};
    return bottomSheet(panel, @"Cancel", dismissal(sheet), screen);
}

std::vector<Panel> panelsOf(UIViewController* controller, CGSize screen) {
    if (UIAlertController* alert = as<UIAlertController>(controller)) return panelsOfAlert(alert, screen);
    if (UIActivityViewController* sheet = as<UIActivityViewController>(controller))
        return panelsOfShareSheet(sheet, screen);
    return {};
}

// A touch beside a popover takes it away.
Spot spotBeside(UIViewController* popover) {
    UIAlertController* alert = as<UIAlertController>(popover);
    UIAlertAction* cancel = cancelOf(alert);
    return {.view = [popover view],
            .kind = "button",
            .label = "Cancel",
            .act = cancel != nil ? tapOf(alert, cancel) : dismissal(popover)};
}

void drawPart(SvgCanvas& canvas, const Panel& panel, const PanelPart& part) {
    if (part.outline != nullptr) {
        const CGRect icon = {part.frame.origin, {activitySide, activitySide}};
        canvas.rectangle(icon, white, cornerRadius);
        canvas.symbol(CGRectInset(icon, 15, 15), part.outline, gray);
        canvas.line(CGRectMake(part.frame.origin.x, CGRectGetMaxY(icon) + 6, activitySide, 14), part.text,
                    part.style);
        return;
    }
    if (part.spot.kind == "textField") {
        canvas.rectangle(part.frame, white);
        canvas.border(part.frame, separator, 0.5);
        return canvas.line(CGRectInset(part.frame, 6, 0), part.text, part.style);
    }
    if (part.spot.act && part.frame.origin.y > panel.frame.origin.y)
        canvas.rectangle(CGRectMake(part.frame.origin.x, part.frame.origin.y, part.frame.size.width, 0.5),
                         separator);
    if (part.frame.origin.x > panel.frame.origin.x)
        canvas.rectangle(CGRectMake(part.frame.origin.x, part.frame.origin.y, 0.5, part.frame.size.height),
                         separator);
    canvas.line(part.frame, part.text, part.style);
}

} // namespace

std::string shownText(UITextField* field) {
    if ([[field text] length] == 0) return text([field placeholder]);
    if (![field isSecureTextEntry]) return text([field text]);
    std::string bullets;
    for (NSUInteger letter = 0; letter < [[field text] length]; ++letter)
        bullets += "•";
    return bullets;
}

bool drawPanels(SvgCanvas& canvas, UIViewController* controller, CGSize screen) {
    const std::vector<Panel> panels = panelsOf(controller, screen);
    if (panels.empty()) return false;
    canvas.rectangle({CGPointZero, screen}, dimming);
    if ([controller isShownAsPopover]) canvas.spot({CGPointZero, screen}, spotBeside(controller));
    for (const Panel& panel : panels) {
        if (panel.arrow) {
            const bool pointsUp = panel.arrow->y < panel.frame.origin.y;
            const CGFloat y = pointsUp ? panel.arrow->y : CGRectGetMaxY(panel.frame);
            canvas.symbol(CGRectMake(panel.arrow->x - arrowHeight, y, 2 * arrowHeight, arrowHeight),
                          pointsUp ? outline::arrowUp : outline::arrowDown, panelColor);
        }
        canvas.rectangle(panel.frame, panelColor, cornerRadius);
        for (const PanelPart& part : panel.parts) {
            drawPart(canvas, panel, part);
            if (part.spot.kind.empty()) continue;
            Spot spot = part.spot;
            spot.view = [controller view];
            canvas.spot(part.frame, std::move(spot));
        }
    }
    return true;
}

} // namespace simulator
