// The control socket of a host process: JSON lines in, each answered by one.
#pragma once

#include <filesystem>
#include <string>

namespace simulator {

// Serves DEVICE/run/IDENTIFIER.sock on threads of its own; verbs run on the main thread. Throws
// std::system_error.
void serveControlSocket(const std::filesystem::path& path);

std::filesystem::path controlSocketOf(const std::filesystem::path& device,
                                      const std::string& bundleIdentifier);

} // namespace simulator
