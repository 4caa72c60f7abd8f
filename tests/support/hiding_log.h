// Writes down, in order, what Photos asks of the hiding helper, of the photo library and of the screen, and
// lets it happen.
#pragma once

#include "photolibrary/library.h"

#include <string>
#include <vector>

namespace simulator::test {

// From here on, with the photos named by their present numbers, the oldest being 0. Once per process, after
// the host started; main thread.
void keepHidingLog(PhotoLibrary& library);

// The entries since the last call, once all changes are made: "hide 0 2" or "show 1", "show nothing" for an
// empty array, "show unset" for none, each with " and tell" when it has a completion; "change" for any other
// change, "present" for what a grid of photos or a list of albums presents.
std::vector<std::string> takeHidingLog();

} // namespace simulator::test
