// What this process is on the device: which application, and whether it is locked into a sandbox.
#pragma once

#include <set>
#include <string>
#include <string_view>

namespace simulator {

void setHostBundleIdentifier(std::string identifier);
std::string hostBundleIdentifier(); // empty until a host starts

// The keys of the application's Info.plist that say why it uses what is private to the device's owner.
inline constexpr const char* photoUsage = "NSPhotoLibraryUsageDescription";
inline constexpr const char* faceIdUsage = "NSFaceIDUsageDescription";

void setUsageDescriptions(std::set<std::string, std::less<>> keys);
bool hostDescribesUsage(std::string_view key);

// Ends the process as the system ends an application that touches what is private without saying why.
[[noreturn]] void endForMissingDescription(std::string_view key);

// Every application but the system's shell lives in a sandbox.
bool hostIsSandboxed();

} // namespace simulator
