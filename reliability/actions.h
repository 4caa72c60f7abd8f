// What the fault loop tries.
#pragma once

#include "world.h"

#include <vector>

namespace reliability {

const std::vector<Action>& actions();

} // namespace reliability
