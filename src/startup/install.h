// Installs the rows of the hook table.
#pragma once

#include "startup/hook_table.h"

namespace rollkeeper {

// Installs the rows of one group, in order. A class or method that this process lacks installs nothing.
// For the Albums screen, whose methods differ between releases that nobody has looked at, such a row is not
// even tried.
void install(HookGroup group);

} // namespace rollkeeper
