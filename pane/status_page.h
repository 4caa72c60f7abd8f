// The page that answers "is it working?": the versions, whether library and service are there, what can be
// read, and what this system has for each feature. It is needed most where something is broken, so it relies
// on nothing.
#pragma once

#include "page.h"

namespace rollkeeper::pane {

// The rows of the property list with what holds now, and one for each feature. Begins to ask the service; the
// row is renewed when the answer is there, or is no longer expected.
Owner<NSMutableArray> statusPageRows(PSListController page);

// -readPreferenceValue:, -lookForAnswer:, -giveUp:, -copyStatus: of the page.
std::span<const PageMethod> statusPageMethods();

} // namespace rollkeeper::pane
