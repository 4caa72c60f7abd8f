// The page of locked albums: how they open, and the password.
#pragma once

#include "page.h"

namespace rollkeeper::pane {

// The rows of the property list without the buttons that have nothing to do, and with warnings of the
// settings that keep the user out of locked albums or let everybody in.
Owner<NSMutableArray> lockingPageRows(PSListController page);

// -viewWillAppear:, -setPassword:, -changePassword:, -removePassword: of the page.
std::span<const PageMethod> lockingPageMethods();

} // namespace rollkeeper::pane
