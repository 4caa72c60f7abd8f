// The page with a switch for each of the user's albums.
#pragma once

#include "page.h"

namespace rollkeeper::pane {

// The rows of the property list and, behind them, one for each title that an album of the user has.
Owner<NSMutableArray> albumsPageRows(PSListController page);

} // namespace rollkeeper::pane
