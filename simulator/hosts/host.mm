#include "hosts/host.h"

#include "device/clock.h"
#include "device/device.h"
#include "device/process.h"
#include "device/releases.h"
#include "device/root.h"
#include "device/threads.h"
#include "frameworks/CoreFoundation/CoreFoundation.h"
#include "loader/loader.h"

#import <Foundation/Foundation.h>

#include <stdexcept>

namespace simulator {
namespace {

void applyConditions() {
    const auto conditions = currentConditions();
    setCurrentRelease(conditions->release);
    kCFCoreFoundationVersionNumber =
        conditions->coreFoundationVersion.value_or(coreFoundationVersion(conditions->release));
    if (conditions->manualClock) clock().useManualTime();
}

void load(const std::filesystem::path& library) {
    beginLoggingAddedMethods();
    loadLibrary(library.string());
    endLoggingAddedMethods();
}

// Before the working directory changes.
std::filesystem::path absoluteOrNone(const std::optional<std::filesystem::path>& path) {
    return path ? std::filesystem::absolute(*path) : std::filesystem::path();
}

// A run loop without anything to listen to would not wait; it does not own its ports.
void keepMainRunLoopAlive() {
    [[NSRunLoop currentRunLoop] addPort:[[NSPort port] retain] forMode:NSDefaultRunLoopMode];
}

} // namespace

Host::Host(const HostOptions& options) {
    @autoreleasepool {
        mountDevice(Device::open(options.device).folder());
        setHostBundleIdentifier(options.bundleIdentifier);
        applyConditions();
        const std::filesystem::path library = absoluteOrNone(options.library);
        const Application application = applicationFor(options.bundleIdentifier);
        setUsageDescriptions(application.usageDescriptions);
        if (!application.frameworks.empty()) setLoadedFrameworks(application.frameworks);
        if (application.worksInRootFolder) std::filesystem::current_path(mountedDevice() / "root");
        keepMainRunLoopAlive();
        if (options.beforeLoading) options.beforeLoading();
        if (options.library) load(library);
        if (application.start) runAsEvent(application.start);
    }
}

Host::~Host() { mountDevice({}); }

const std::vector<Installation>& Host::installations() const { return installationLog(); }

bool Host::runUntil(const std::function<bool()>& condition, double timeout) {
    return simulator::runUntil(condition, timeout);
}

void Host::spin(double seconds) {
    runUntil([] { return false; }, seconds);
}

void Host::drain() { spin(0.02); }

} // namespace simulator
