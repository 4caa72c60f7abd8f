// What the host program looks up: applications by bundle identifier and the verbs of the control socket.
#pragma once

#include "hosts/host.h"

namespace simulator {

// A plain application when nothing is registered under the identifier.
Application applicationFor(std::string_view bundleIdentifier);

} // namespace simulator
