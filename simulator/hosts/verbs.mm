// The verbs that every host has.
#include "device/clock.h"
#include "device/json_objects.h"
#include "device/releases.h"
#include "frameworks/AppSupport/AppSupport.h"
#include "frameworks/CoreFoundation/CoreFoundation.h"
#include "frameworks/RocketBootstrap/RocketBootstrap.h"
#include "hosts/host.h"
#include "loader/loader.h"

#import "UIKit/UIKit.h"
#import "UIKit/ViewTree.h"

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
    registerVerb("type", [](const json& request) { typeText(0, text(request, "text")); });
    registerVerb("enterBackground", [] { [[UIApplication sharedApplication] enterBackground]; });
}

} // namespace
} // namespace simulator
