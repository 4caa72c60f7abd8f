#pragma once

/// Stand-in of the private framework of Settings: panes of rows that are described by specifiers and read and
/// write preference files. Include this header alone. Main thread.
#import "Preferences/PSBundleController.h"
#import "Preferences/PSKeys.h"
#import "Preferences/PSListController.h"
#import "Preferences/PSListItemsController.h"
#import "Preferences/PSRootController.h"
#import "Preferences/PSSpecifier.h"
#import "Preferences/PSTableCell.h"
#import "Preferences/PSViewController.h"
