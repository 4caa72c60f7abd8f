#include "device/process.h"

#include <mutex>

namespace simulator {
namespace {

struct Identity {
    std::mutex lock;
    std::string bundleIdentifier;
};

Identity& identity() {
    static auto* shared = new Identity;
    return *shared;
}

} // namespace

void setHostBundleIdentifier(std::string identifier) {
    const std::lock_guard guard(identity().lock);
    identity().bundleIdentifier = std::move(identifier);
}

std::string hostBundleIdentifier() {
    const std::lock_guard guard(identity().lock);
    return identity().bundleIdentifier;
}

bool hostIsSandboxed() {
    const std::string bundleIdentifier = hostBundleIdentifier();
    return !bundleIdentifier.empty() && bundleIdentifier != "com.apple.springboard";
}

} // namespace simulator
