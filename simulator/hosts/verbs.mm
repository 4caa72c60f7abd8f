// The verbs that every host has.
#include "device/clock.h"
#include "device/json_objects.h"
#include "device/releases.h"
#include "frameworks/AppSupport/AppSupport.h"
#include "frameworks/CoreFoundation/CoreFoundation.h"
#include "frameworks/RocketBootstrap/RocketBootstrap.h"
#include "hosts/host.h"
#include "loader/loader.h"

#include <cstdlib>

namespace simulator {
namespace {

using nlohmann::json;

json toJson(const Installation& installation) {
    const LoadedLibrary* image = loadedLibraryContaining(installation.implementation);
    return {
        {"kind", installation.kind == Installation::Kind::replaced ? "replaced" : "added"},
        {"class", installation.className},
        {"method", std::string(1, installation.methodKind) + installation.selector},
        {"encoding", installation.encoding},
        {"slot", reinterpret_cast<std::uintptr_t>(installation.slot)},
        {"installed", installation.installed},
        {"image", image == nullptr ? "" : image->path},
    };
}

json hooks(const json&) {
    json list = json::array();
    for (const Installation& installation : installationLog())
        list.push_back(toJson(installation));
    return {{"hooks", list}};
}

json ready(const json&) {
    return {{"release", releaseName(currentRelease())},
            {"coreFoundationVersion", kCFCoreFoundationVersionNumber}};
}

json advanceClock(const json& request) {
    clock().advance(request.at("seconds").get<double>());
    return {{"now", clock().now()}};
}

json postNotification(const json& request) {
    NSString* name = objectFromJson(request.at("name"));
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         reinterpret_cast<CFStringRef>(name), nullptr, nullptr, true);
    return json::object();
}

json sendMessage(const json& request) {
    NSString* name = objectFromJson(request.at("centre"));
    CPDistributedMessagingCenter* centre = [CPDistributedMessagingCenter centerNamed:name];
    if (request.value("unlock", false)) rocketbootstrap_distributedmessagingcenter_apply(centre);
    id userInfo = request.contains("userInfo") ? objectFromJson(request["userInfo"]) : nil;
    return {{"sent", [centre sendMessageName:objectFromJson(request.at("name")) userInfo:userInfo] != NO}};
}

__attribute__((constructor)) void registerVerbs() {
    registerVerb("ready", ready);
    registerVerb("hooks", hooks);
    registerVerb("advanceClock", advanceClock);
    registerVerb("postNotification", postNotification);
    registerVerb("sendMessage", sendMessage);
}

} // namespace
} // namespace simulator
