// What this process is on the device: which application, and whether it is locked into a sandbox.
#pragma once

#include <string>

namespace simulator {

void setHostBundleIdentifier(std::string identifier);
std::string hostBundleIdentifier(); // empty until a host starts

// Every application but the system's shell lives in a sandbox.
bool hostIsSandboxed();

} // namespace simulator
