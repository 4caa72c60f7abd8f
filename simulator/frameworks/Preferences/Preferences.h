#pragma once

/// Stand-in of the private framework of Settings: panes of rows that specifiers describe, as far as the pane
/// of an installed tool needs it. Include this header alone. Main thread.
#import "Preferences/PSListController.h"
#import "Preferences/PSSpecifier.h"
#import "Preferences/PSTableCell.h"
