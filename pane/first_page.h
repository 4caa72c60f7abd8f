// The first page: links to the others, and the way back to the defaults.
#pragma once

#include "page.h"

namespace rollkeeper::pane {

// -resetSettings: of the page.
std::span<const PageMethod> firstPageMethods();

} // namespace rollkeeper::pane
