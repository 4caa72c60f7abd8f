#include "device/process.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace simulator {
namespace {

constinit std::mutex lock;
[[clang::no_destroy]] std::string identifier;
[[clang::no_destroy]] std::set<std::string, std::less<>> descriptions;

} // namespace

void setHostBundleIdentifier(std::string bundleIdentifier) {
    const std::lock_guard guard(lock);
    identifier = std::move(bundleIdentifier);
}

std::string hostBundleIdentifier() {
    const std::lock_guard guard(lock);
    return identifier;
}

void setUsageDescriptions(std::set<std::string, std::less<>> keys) {
    const std::lock_guard guard(lock);
    descriptions = std::move(keys);
}

bool hostDescribesUsage(std::string_view key) {
    const std::lock_guard guard(lock);
    return descriptions.contains(key);
}

void endForMissingDescription(std::string_view key) {
    std::fprintf(stderr,
                 "*** This app has crashed because it attempted to access privacy-sensitive data without a "
                 "usage description: its Info.plist must contain %s\n",
                 std::string(key).c_str());
    std::abort();
}

bool hostIsSandboxed() {
    const std::string host = hostBundleIdentifier();
    return !host.empty() && host != "com.apple.springboard";
}

} // namespace simulator
