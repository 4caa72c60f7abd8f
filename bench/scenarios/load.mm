#include "device/device.h"
#include "hosts/host.h"
#include "measuring.h"
#include "scenarios/scenarios.h"

#import "Hooking/Hooking.h"

#include <nlohmann/json.hpp>

#include <dlfcn.h>

#include <stdexcept>

namespace bench {
namespace {

constexpr const char* preferences = "/var/mobile/Library/Preferences/com.nrv.rollkeeperprefs.plist";

using Reading = id (*)(Class, SEL, NSString*);

Reading originalReading;
std::optional<Stretch> loading;
std::size_t timesRead = 0;

// Stands around the reading, so that it is measured inside the very load of which it is a part.
id measuredReading(Class self, SEL command, NSString* path) {
    loading->stop("own");
    loading.emplace();
    id content = originalReading(self, command, path);
    loading->stop("reading");
    ++timesRead;
    loading.emplace();
    return content;
}

void measureLoadOf(const std::string& library) {
    const Class owner = [NSMutableDictionary class];
    const SEL reading = @selector(dictionaryWithContentsOfFile:);
    MSHookMessageEx(object_getClass(owner), reading, reinterpret_cast<IMP>(measuredReading),
                    reinterpret_cast<IMP*>(&originalReading));
    loading.emplace();
    const void* loaded = dlopen(library.c_str(), RTLD_NOW | RTLD_GLOBAL);
    loading->stop("own");
    if (loaded == nullptr) throw std::runtime_error(dlerror());
    if (timesRead != 1) throw std::runtime_error("a load was expected to read the preferences once");
    measure("reading again", [&] { originalReading(owner, reading, @(preferences)); });
}

// The library adds its own class and methods to it in any case; nothing else of the host may have been
// replaced.
bool isSwitchedOff(const simulator::Host& host) {
    std::size_t replaced = 0;
    for (const simulator::Installation& each : host.installations())
        if (each.kind == simulator::Installation::Kind::replaced) ++replaced;
    return replaced == 1; // the measurement's own
}

} // namespace

void measureLoad(const Options& options) {
    const std::filesystem::path folder = options.text("device");
    const std::string library = std::filesystem::absolute(options.text("library"));
    simulator::Device::open(folder).writePropertyList(preferences,
                                                      nlohmann::json::parse(options.text("preferences")));
    const simulator::Host host(
        {.bundleIdentifier = options.text("bundle"), .device = folder, .library = {}, .beforeLoading = [&] {
             measureLoadOf(library);
         }});
    if (!isSwitchedOff(host)) throw std::runtime_error("the library was not switched off");
}

} // namespace bench
