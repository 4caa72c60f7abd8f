// The reasons that authentication dialogs showed, for tests.
#pragma once

#include <string>
#include <vector>

namespace simulator {

// In order, as UTF-8. Main thread.
std::vector<std::string> authenticationReasons();

} // namespace simulator
