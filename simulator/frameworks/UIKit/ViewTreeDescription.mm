#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"
#import "UIKit/internal/ControllerState.h"
#import "UIKit/internal/ImagePixels.h"
#import "UIKit/internal/LayoutQueue.h"
#import "UIKit/internal/Strings.h"
#import "UIKit/internal/ViewState.h"

#include <map>
#include <vector>

namespace simulator {

namespace {

using nlohmann::json;

std::string className(id object) { return toStd(NSStringFromClass([object class])); }
json textOrNull(NSString* text) { return text ? json(toStd(text)) : json(); }
json asJson(CGSize size) { return {size.width, size.height}; }
json asJson(CGRect rect) { return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height}; }

json asJson(UIColor* color) {
    CGFloat red = 0;
    CGFloat green = 0;
    CGFloat blue = 0;
    CGFloat alpha = 0;
    [color getRed:&red green:&green blue:&blue alpha:&alpha];
    return {red, green, blue, alpha};
}

json asJson(UIImage* image) {
    if (!image) return nullptr;
    json description = {{"size", asJson([image size])}};
    if (NSString* file = [image fileName]) description["file"] = toStd(file);
    return description;
}

json asJson(UIGestureRecognizer* recognizer) {
    json description = {{"class", className(recognizer)}, {"enabled", [recognizer isEnabled] != NO}};
    if ([recognizer isKindOfClass:[UITapGestureRecognizer class]])
        description["taps"] = [static_cast<UITapGestureRecognizer*>(recognizer) numberOfTapsRequired];
    if ([recognizer isKindOfClass:[UILongPressGestureRecognizer class]])
        description["seconds"] =
            [static_cast<UILongPressGestureRecognizer*>(recognizer) minimumPressDuration];
    return description;
}

json titlesOf(NSArray* items) {
    json titles = json::array();
    for (UIBarItem* item in items)
        titles.push_back(textOrNull([item title]));
    return titles;
}

void describeLabel(UIView* view, json& description) {
    auto* label = static_cast<UILabel*>(view);
    description["text"] = textOrNull([label text]);
    description["fontSize"] = [[label font] pointSize];
    description["lines"] = [label numberOfLines];
    description["textColor"] = asJson([label textColor]);
}

void describeTextField(UIView* view, json& description) {
    auto* field = static_cast<UITextField*>(view);
    description["text"] = toStd([field text]);
    description["placeholder"] = textOrNull([field placeholder]);
    description["secure"] = [field isSecureTextEntry] != NO;
}

void describeImageView(UIView* view, json& description) {
    description["image"] = asJson([static_cast<UIImageView*>(view) image]);
}

void describeButton(UIView* view, json& description) {
    auto* button = static_cast<UIButton*>(view);
    description["title"] = textOrNull([button currentTitle]);
    description["image"] = asJson([button currentImage]);
    if ([button currentBackgroundImage])
        description["backgroundImage"] = asJson([button currentBackgroundImage]);
}

void describeControl(UIView* view, json& description) {
    description["enabled"] = [static_cast<UIControl*>(view) isEnabled] != NO;
}

void describeSwitch(UIView* view, json& description) {
    description["on"] = [static_cast<UISwitch*>(view) isOn] != NO;
}

void describeIndicator(UIView* view, json& description) {
    description["animating"] = [static_cast<UIActivityIndicatorView*>(view) isAnimating] != NO;
}

void describeEffect(UIView* view, json& description) {
    UIVisualEffect* effect = [static_cast<UIVisualEffectView*>(view) effect];
    if ([effect isKindOfClass:[UIBlurEffect class]])
        description["blurStyle"] = [static_cast<UIBlurEffect*>(effect) style];
}

void describeTableCell(UIView* view, json& description) {
    description["accessory"] = [static_cast<UITableViewCell*>(view) accessoryType];
}

void describeScrollView(UIView* view, json& description) {
    auto* scroll = static_cast<UIScrollView*>(view);
    description["contentSize"] = asJson([scroll contentSize]);
    description["contentOffset"] = {[scroll contentOffset].x, [scroll contentOffset].y};
}

void describeNavigationBar(UIView* view, json& description) {
    UINavigationItem* item = [static_cast<UINavigationBar*>(view) topItem];
    description["title"] = textOrNull([item title]);
    description["leftItems"] = titlesOf([item leftBarButtonItems]);
    description["rightItems"] = titlesOf([item rightBarButtonItems]);
}

void describeToolbar(UIView* view, json& description) {
    description["items"] = titlesOf([static_cast<UIToolbar*>(view) items]);
}

void describeTabBar(UIView* view, json& description) {
    auto* bar = static_cast<UITabBar*>(view);
    description["items"] = titlesOf([bar items]);
    description["selected"] = textOrNull([[bar selectedItem] title]);
}

struct Describer {
    Class viewClass;
    void (*describe)(UIView* view, json& description);
};

// What each class adds to the description of a view; all that fit count.
const std::vector<Describer>& describers() {
    static const std::vector<Describer> all = {
        {[UILabel class], describeLabel},
        {[UIControl class], describeControl},
        {[UITextField class], describeTextField},
        {[UIImageView class], describeImageView},
        {[UIButton class], describeButton},
        {[UISwitch class], describeSwitch},
        {[UIActivityIndicatorView class], describeIndicator},
        {[UIVisualEffectView class], describeEffect},
        {[UITableViewCell class], describeTableCell},
        {[UIScrollView class], describeScrollView},
        {[UINavigationBar class], describeNavigationBar},
        {[UIToolbar class], describeToolbar},
        {[UITabBar class], describeTabBar},
    };
    return all;
}

// Only what differs from a fresh view, so that the tree stays readable.
void describeState(UIView* view, json& description) {
    const ViewState& state = [view viewState];
    if (state.tag != 0) description["tag"] = state.tag;
    if (state.hidden) description["hidden"] = true;
    if (state.alpha != 1) description["alpha"] = state.alpha;
    if (!state.takesTouches) description["userInteractionEnabled"] = false;
    if (state.controller) description["controller"] = className(state.controller);
    if (state.backgroundColor) description["backgroundColor"] = asJson(state.backgroundColor.get());
    if (state.accessibilityIdentifier) description["identifier"] = toStd(state.accessibilityIdentifier.get());
    if (state.accessibilityLabel) description["label"] = toStd(state.accessibilityLabel.get());
    if (state.layer.get() && [state.layer.get() cornerRadius] != 0)
        description["cornerRadius"] = [state.layer.get() cornerRadius];
    if (state.layer.get() && [state.layer.get() masksToBounds]) description["clips"] = true;
    for (const auto& recognizer : state.recognizers)
        description["gestures"].push_back(asJson(recognizer.get()));
}

json anchorOf(UIViewController* controller) {
    UIPopoverPresentationController* popover = [controller controllerState].popover.get();
    if (UIBarButtonItem* item = [popover barButtonItem]) return {{"barButton", textOrNull([item title])}};
    UIView* source = [popover sourceView];
    if (!source) return nullptr;
    return {{"class", className(source)}, {"tag", [source tag]}, {"rect", asJson([popover sourceRect])}};
}

json asJson(UIAlertController* alert) {
    static const std::map<UIAlertActionStyle, const char*> styleNames = {
        {UIAlertActionStyleDefault, "default"},
        {UIAlertActionStyleCancel, "cancel"},
        {UIAlertActionStyleDestructive, "destructive"},
    };
    const bool isSheet = [alert preferredStyle] == UIAlertControllerStyleActionSheet;
    json description = {{"title", textOrNull([alert title])},
                        {"message", textOrNull([alert message])},
                        {"style", isSheet ? "actionSheet" : "alert"},
                        {"actions", json::array()},
                        {"textFields", json::array()},
                        {"anchor", anchorOf(alert)}};
    for (UIAlertAction* action in [alert actions])
        description["actions"].push_back({{"title", textOrNull([action title])},
                                          {"style", styleNames.at([action style])},
                                          {"enabled", [action isEnabled] != NO}});
    for (UITextField* field in [alert textFields]) {
        json fieldDescription;
        describeTextField(field, fieldDescription);
        description["textFields"].push_back(fieldDescription);
    }
    return description;
}

json presentedAsJson(UIViewController* controller) {
    json description = {{"class", className(controller)},
                        {"title", textOrNull([controller title])},
                        {"style", [controller modalPresentationStyle]},
                        {"anchor", anchorOf(controller)}};
    if ([controller isKindOfClass:[UIActivityViewController class]]) {
        description["activities"] = json::array();
        for (UIActivity* activity in [static_cast<UIActivityViewController*>(controller) offeredActivities])
            description["activities"].push_back(textOrNull([activity activityTitle]));
    }
    return description;
}

} // namespace

json viewAsJson(UIView* view) {
    json description = {
        {"class", className(view)}, {"frame", asJson([view frame])}, {"subviews", json::array()}};
    describeState(view, description);
    for (const Describer& each : describers())
        if ([view isKindOfClass:each.viewClass]) each.describe(view, description);
    for (UIView* subview in [view subviews])
        description["subviews"].push_back(viewAsJson(subview));
    return description;
}

json viewTreeAsJson() {
    layoutWindows();
    UIScreen* screen = [UIScreen mainScreen];
    UIWindow* window = [[UIApplication sharedApplication] keyWindow];
    json tree = {{"screen",
                  {{"width", [screen bounds].size.width},
                   {"height", [screen bounds].size.height},
                   {"scale", [screen scale]}}},
                 {"keyWindow", window ? viewAsJson(window) : json()},
                 {"presented", json::array()},
                 {"alert", frontAlert() ? asJson(frontAlert()) : json()}};
    UIViewController* controller = [[window rootViewController] controllerState].presented.get();
    for (; controller; controller = [controller controllerState].presented.get())
        tree["presented"].push_back(presentedAsJson(controller));
    return tree;
}

} // namespace simulator
