// What the fault loop tries.
#pragma once

#include "world.h"

#include <vector>

namespace reliability {

const std::vector<Action>& actions();

// Applications that the library is loaded into.
const std::vector<Action>& loads();

} // namespace reliability
