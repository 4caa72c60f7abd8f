// The verbs that every host has.
#include "device/clock.h"
#include "device/json_objects.h"
#include "device/releases.h"
#include "frameworks/AppSupport/AppSupport.h"
#include "frameworks/CoreFoundation/CoreFoundation.h"
#include "frameworks/Hooking/HookCalls.h"
#include "frameworks/RocketBootstrap/RocketBootstrap.h"
#include "hosts/host.h"
#include "loader/loader.h"

#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"

#include <cmath>
#include <stdexcept>

namespace simulator {
namespace {

using nlohmann::json;

json toJson(const Installation& installation) {
    const LoadedLibrary* file = loadedLibraryContaining(installation.implementation);
    return {
        {"kind", installation.kind == Installation::Kind::replaced ? "replaced" : "added"},
        {"class", installation.className},
        {"method", std::string(1, installation.methodKind) + installation.selector},
        {"installed", installation.installed},
        {"image", file == nullptr ? "" : file->path},
    };
}

json hooks() {
    json list = json::array();
    for (const Installation& installation : installationLog())
        list.push_back(toJson(installation));
    return {{"hooks", list}};
}

json calls() {
    json list = json::array();
    for (const HookCalls& each : hookCalls())
        list.push_back({{"method", each.method}, {"count", each.count}, {"lastCall", each.lastCall}});
    return {{"calls", list}};
}

json touched() {
    json screens = json::array();
    for (const TouchedScreen& each : takeTouchedScreens())
        screens.push_back({{"svg", each.svg}, {"x", each.point.x}, {"y", each.point.y}});
    return {{"screens", screens}};
}

// The picture and the places to touch on it, rounded to whole points.
json screen() {
    const Picture picture = screenPicture();
    json spots = json::array();
    for (const Spot& spot : reachableSpots(picture))
        spots.push_back({{"kind", spot.kind},
                         {"label", spot.label},
                         {"state", spot.state},
                         {"rect",
                          {std::lround(spot.rect.origin.x), std::lround(spot.rect.origin.y),
                           std::lround(spot.rect.size.width), std::lround(spot.rect.size.height)}}});
    return {{"svg", picture.svg}, {"spots", spots}};
}

CGPoint pointOf(const json& request) {
    return {request.at("x").get<CGFloat>(), request.at("y").get<CGFloat>()};
}

void touch(const json& request) {
    const std::string gesture = request.value("gesture", "");
    if (gesture == "pinch")
        pinchAt(pointOf(request));
    else if (gesture == "hardPress")
        hardPressAt(pointOf(request));
    else if (request.contains("seconds"))
        longPressAt(pointOf(request), request["seconds"].get<double>());
    else
        tapAt(pointOf(request), request.value("taps", 1U));
}

void scroll(const json& request) {
    scrollAt(pointOf(request), {request.value("right", 0.0), request.value("down", 0.0)});
}

json ready() {
    return {{"release", releaseName(currentRelease())},
            {"coreFoundationVersion", kCFCoreFoundationVersionNumber}};
}

void postNotification(const json& request) {
    NSString* name = objectFromJson(request.at("name"));
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         reinterpret_cast<CFStringRef>(name), nullptr, nullptr, true);
}

json sendMessage(const json& request) {
    NSString* name = objectFromJson(request.at("centre"));
    CPDistributedMessagingCenter* centre = [CPDistributedMessagingCenter centerNamed:name];
    if (request.value("unlock", false)) rocketbootstrap_distributedmessagingcenter_apply(centre);
    id userInfo = request.contains("userInfo") ? objectFromJson(request["userInfo"]) : nil;
    return {{"sent", [centre sendMessageName:objectFromJson(request.at("name")) userInfo:userInfo] != NO}};
}

// The view with the "tag", or at the "path" of indices that leads to it from the key window.
UIView* namedView(const json& request) {
    UIView* view = [[UIApplication sharedApplication] keyWindow];
    if (request.contains("tag")) {
        view = [view viewWithTag:request["tag"].get<NSInteger>()];
    } else {
        for (const std::size_t index : request.at("path").get<std::vector<std::size_t>>())
            view = index < [[view subviews] count] ? [[view subviews] objectAtIndex:index] : nil;
    }
    if (view == nil) throw std::invalid_argument("no such view: " + request.dump());
    return view;
}

std::string text(const json& request, const char* key) { return request.at(key).get<std::string>(); }

__attribute__((constructor)) void registerVerbs() {
    registerVerb("ready", ready);
    registerVerb("hooks", hooks);
    registerVerb("advanceClock",
                 [](const json& request) { clock().advance(request.at("seconds").get<double>()); });
    registerVerb("postNotification", postNotification);
    registerVerb("sendMessage", sendMessage);
    registerVerb("viewTree", viewTreeAsJson);
    registerVerb("screenshot", [] { return json{{"svg", screenshotAsSvg()}}; });
    registerVerb("tap", [](const json& request) { tap(namedView(request)); });
    registerVerb("barButton", [](const json& request) { tapBarButton(text(request, "title")); });
    registerVerb("alertAction", [](const json& request) { tapAlertAction(text(request, "title")); });
    registerVerb("type", [](const json& request) {
        typeText(request.value("field", std::size_t{0}), text(request, "text"));
    });
    registerVerb("screen", screen);
    registerVerb("touchedScreens", touched);
    registerVerb("touch", touch);
    registerVerb("scroll", scroll);
    registerVerb("followScreen", followScreen);
    registerVerb("hookCalls", calls);
    registerVerb("enterBackground", [] { [[UIApplication sharedApplication] enterBackground]; });
    registerVerb("enterForeground", [] { [[UIApplication sharedApplication] enterForeground]; });
}

} // namespace
} // namespace simulator
