// The verbs that every host has.
#include "device/clock.h"
#include "device/releases.h"
#include "frameworks/CoreFoundation/CoreFoundation.h"
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
    NSString* name = [NSString stringWithUTF8String:request.at("name").get<std::string>().c_str()];
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         reinterpret_cast<CFStringRef>(name), nullptr, nullptr, true);
    return json::object();
}

__attribute__((constructor)) void registerVerbs() {
    registerVerb("ready", ready);
    registerVerb("hooks", hooks);
    registerVerb("advanceClock", advanceClock);
    registerVerb("postNotification", postNotification);
}

} // namespace
} // namespace simulator
