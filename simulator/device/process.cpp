#include "device/process.h"

#include <mutex>

namespace simulator {
namespace {

constinit std::mutex lock;
[[clang::no_destroy]] std::string identifier;

} // namespace

void setHostBundleIdentifier(std::string bundleIdentifier) {
    const std::lock_guard guard(lock);
    identifier = std::move(bundleIdentifier);
}

std::string hostBundleIdentifier() {
    const std::lock_guard guard(lock);
    return identifier;
}

bool hostIsSandboxed() {
    const std::string host = hostBundleIdentifier();
    return !host.empty() && host != "com.apple.springboard";
}

} // namespace simulator
