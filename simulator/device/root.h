// The file-system root of the mounted device: absolute paths of the device resolve inside its folder, for
// every C library call of this process that takes a path.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace simulator {

// Mounts the device folder for this process; an empty path unmounts it. Not while other threads open files.
void mountDevice(const std::filesystem::path& folder);

// The mounted device's folder, empty when there is none.
std::filesystem::path mountedDevice();

// Where a path lies on this machine: unchanged unless it is an absolute path of the device and a device is
// mounted.
std::string linuxPath(std::string_view path);

} // namespace simulator
