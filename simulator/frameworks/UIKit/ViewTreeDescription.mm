#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"
#import "UIKit/internal/Casts.h"
#import "UIKit/internal/ViewInternals.h"
#include "device/strings.h"

namespace simulator {

namespace {

using nlohmann::json;

std::string className(id object) { return text(NSStringFromClass([object class])); }
json textOrNull(NSString* string) { return string != nil ? json(text(string)) : json(); }
json asJson(CGRect rect) { return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height}; }

json asJson(UIImage* image) {
    if (image == nil) return nullptr;
    return {{"size", {[image size].width, [image size].height}}, {"file", textOrNull([image fileName])}};
}

// Only what differs from a fresh view, so that the tree stays readable.
void describeState(UIView* view, json& description) {
    if ([view tag] != 0) description["tag"] = [view tag];
    if ([view isHidden]) description["hidden"] = true;
    if ([view alpha] != 1) description["alpha"] = [view alpha];
    UIViewController* controller = [view _viewControllerForAncestor];
    if (controller != nil && [controller viewIfLoaded] == view)
        description["controller"] = className(controller);
}

json anchorOf(UIAlertController* alert) {
    UIPopoverPresentationController* popover = [alert popoverPresentationController];
    UIView* source = [popover sourceView];
    if (source == nil) return nullptr;
    return {{"class", className(source)}, {"tag", [source tag]}, {"rect", asJson([popover sourceRect])}};
}

json asJson(UIAlertController* alert) {
    if (alert == nil) return nullptr;
    constexpr const char* actionStyles[] = {"default", "cancel", "destructive"};
    const bool isSheet = [alert preferredStyle] == UIAlertControllerStyleActionSheet;
    json description = {{"title", textOrNull([alert title])},
                        {"message", textOrNull([alert message])},
                        {"style", isSheet ? "actionSheet" : "alert"},
                        {"actions", json::array()},
                        {"textFields", json::array()},
                        {"anchor", anchorOf(alert)}};
    for (UIAlertAction* action in [alert actions])
        description["actions"].push_back({{"title", textOrNull([action title])},
                                          {"style", actionStyles[[action style]]},
                                          {"enabled", [action isEnabled] != NO}});
    for (UITextField* field in [alert textFields])
        description["textFields"].push_back({{"text", text([field text])},
                                             {"placeholder", textOrNull([field placeholder])},
                                             {"secure", [field isSecureTextEntry] != NO}});
    return description;
}

} // namespace

json viewAsJson(UIView* view) {
    json description = {
        {"class", className(view)}, {"frame", asJson([view frame])}, {"subviews", json::array()}};
    describeState(view, description);
    if (UILabel* label = as<UILabel>(view)) description["text"] = textOrNull([label text]);
    if (UITextField* field = as<UITextField>(view)) description["text"] = text([field text]);
    if (UIImageView* picture = as<UIImageView>(view)) description["image"] = asJson([picture image]);
    for (UIView* subview in [view subviews])
        description["subviews"].push_back(viewAsJson(subview));
    return description;
}

json viewTreeAsJson() {
    layoutWindows();
    UIWindow* window = [[UIApplication sharedApplication] keyWindow];
    return {{"keyWindow", window != nil ? viewAsJson(window) : json()}, {"alert", asJson(frontAlert())}};
}

} // namespace simulator
