// The verbs of a host's control socket that see and touch its screen.
#import "UIKit/Screenshot.h"
#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"
#import "UIKit/internal/Strings.h"
#include "hosts/host.h"

#include <stdexcept>

namespace simulator {

namespace {

using nlohmann::json;

UIView* viewAtPath(const json& path) {
    UIView* view = [[UIApplication sharedApplication] keyWindow];
    for (const json& step : path) {
        NSArray* subviews = [view subviews];
        const auto index = step.get<std::size_t>();
        if (index >= [subviews count]) throw std::invalid_argument("no view is at the path " + path.dump());
        view = [subviews objectAtIndex:index];
    }
    return view;
}

bool shows(UIView* view, const std::string& text) {
    if ([view isKindOfClass:[UILabel class]]) return toStd([static_cast<UILabel*>(view) text]) == text;
    if ([view isKindOfClass:[UIButton class]])
        return toStd([static_cast<UIButton*>(view) currentTitle]) == text;
    return false;
}

UIView* viewShowing(UIView* view, const std::string& text) {
    if (shows(view, text)) return view;
    for (UIView* subview in [view subviews])
        if (UIView* found = viewShowing(subview, text)) return found;
    return nil;
}

// The view that a request names by "tag", "text" or "path".
UIView* namedView(const json& request) {
    UIWindow* window = [[UIApplication sharedApplication] keyWindow];
    UIView* view = nil;
    if (request.contains("tag"))
        view = [window viewWithTag:request.at("tag").get<NSInteger>()];
    else if (request.contains("text"))
        view = viewShowing(window, request.at("text").get<std::string>());
    else
        view = viewAtPath(request.at("path"));
    if (!view) throw std::invalid_argument("no such view: " + request.dump());
    return view;
}

bool namesPoint(const json& request) { return request.contains("x") && request.contains("y"); }
CGPoint pointOf(const json& request) {
    return {request.at("x").get<double>(), request.at("y").get<double>()};
}

json answerFor(UIView* hit) {
    if (!hit) return {{"hit", nullptr}};
    return {{"hit", toStd(NSStringFromClass([hit class]))}, {"tag", [hit tag]}};
}

json tapVerb(const json& request) {
    const auto taps = request.value("taps", 1U);
    return answerFor(namesPoint(request) ? tapAt(pointOf(request), taps) : tap(namedView(request), taps));
}

json longPressVerb(const json& request) {
    const double seconds = request.value("seconds", 1.0);
    return answerFor(namesPoint(request) ? longPressAt(pointOf(request), seconds)
                                         : longPress(namedView(request), seconds));
}

json chooseActivity(const json& request) {
    UIViewController* front = frontController();
    const auto title = request.at("title").get<std::string>();
    if (![front isKindOfClass:[UIActivityViewController class]] ||
        ![static_cast<UIActivityViewController*>(front) chooseActivityWithTitle:toNS(title)])
        throw std::invalid_argument("no share sheet offers " + title);
    return json::object();
}

// An input that answers nothing.
template <typename Input> Verb silent(Input input) {
    return [input](const json& request) {
        input(request);
        return json::object();
    };
}

__attribute__((constructor)) void registerViewTreeVerbs() {
    registerVerb("viewTree", [](const json&) { return viewTreeAsJson(); });
    registerVerb("screenshot", [](const json&) { return json{{"svg", screenshotAsSvg()}}; });
    registerVerb("tap", tapVerb);
    registerVerb("longPress", longPressVerb);
    registerVerb("chooseActivity", chooseActivity);
    registerVerb("barButton",
                 silent([](const json& request) { tapBarButton(request.at("title").get<std::string>()); }));
    registerVerb("type", silent([](const json& request) {
                     typeText(request.value("field", std::size_t{0}), request.at("text").get<std::string>());
                 }));
    registerVerb("alertAction",
                 silent([](const json& request) { tapAlertAction(request.at("title").get<std::string>()); }));
    registerVerb("rotate",
                 silent([](const json& request) { setLandscape(request.at("landscape").get<bool>()); }));
    registerVerb("enterBackground",
                 silent([](const json&) { [[UIApplication sharedApplication] enterBackground]; }));
    registerVerb("enterForeground",
                 silent([](const json&) { [[UIApplication sharedApplication] enterForeground]; }));
}

} // namespace

} // namespace simulator
