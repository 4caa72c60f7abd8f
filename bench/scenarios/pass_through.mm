#include "hand_written_hook.h"
#include "hosts/host.h"
#include "measuring.h"
#include "scenarios/scenarios.h"

#import "Hooking/Hooking.h"
#import "PhotosUI/PhotosUI.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace bench {
namespace {

constexpr std::size_t calls = 100'000;

// A method without arguments that answers a BOOL, whose replacement tests switches and passes through with
// the settings as they come; and the same replacement by hand.
struct Measured {
    const char* name;
    const char* owner;
    HandWrittenMethod plain;
    HandWrittenMethod shared;
    unsigned char switches[2];
};

constexpr Measured methods[] = {
    {"showPeople", "PUAlbumListViewController", plainDenyHook, sharedDenyHook, {1, 1}},
    {"disallowsSearch", "PUAlbumListViewController", plainAllowHook, sharedAllowHook, {0, 1}},
    {"shouldSkipDeleteConfirmation",
     "PUDeletePhotosActionController",
     plainAllowHook,
     sharedAllowHook,
     {0, 1}},
};

const Measured& methodNamed(const std::string& name) {
    for (const Measured& method : methods)
        if (name == method.name) return method;
    throw std::invalid_argument("the method " + name + " is not among those measured");
}

std::size_t countReplacements(const simulator::Host& host, const char* selector) {
    std::size_t found = 0;
    for (const simulator::Installation& each : host.installations())
        if (each.selector == selector && each.installed) ++found;
    return found;
}

void installByHand(const Measured& method, HandWrittenMethod hook) {
    std::copy(std::begin(method.switches), std::end(method.switches), handWrittenSwitches);
    MSHookMessageEx(objc_getClass(method.owner), sel_registerName(method.name), reinterpret_cast<IMP>(hook),
                    reinterpret_cast<IMP*>(&handWrittenOriginal));
}

} // namespace

void measurePassThrough(const Options& options) {
    const Measured& method = methodNamed(options.text("method"));
    const std::string& hook = options.text("hook");
    const simulator::Host host({.bundleIdentifier = simulator::bundle::photos,
                                .device = options.text("device"),
                                .library = options.library()});
    if (hook == "plain") installByHand(method, method.plain);
    if (hook == "shared") installByHand(method, method.shared);
    const std::size_t wanted = hook == "none" ? 0 : 1;
    if (countReplacements(host, method.name) != wanted ||
        options.library().has_value() != (hook == "library"))
        throw std::runtime_error("the method is not replaced as asked for");

    const Class owner = objc_getClass(method.owner);
    const SEL selector = sel_registerName(method.name);
    using Function = BOOL (*)(id, SEL);
    id receiver = [[[owner alloc] init] autorelease];
    const auto call = reinterpret_cast<Function>(class_getMethodImplementation(owner, selector));
    measure("calls", [&] {
        for (std::size_t done = 0; done < calls; ++done)
            call(receiver, selector);
    });
    report("count", calls);
}

} // namespace bench
