#pragma once

#import "Preferences/Preferences.h"

/// The rows that installed tools add to the list of Settings, as the entry loader of jailbroken devices makes
/// them from /Library/PreferenceLoader/Preferences: sorted by name, each opening a bundle's pane or, without
/// a bundle, a pane made of the entry file's own rows. Entries whose conditions this device does not meet, or
/// whose bundle is missing, are left out.
NSArray* PLLoadEntries(id target);

/// A pane without code: the rows of its entry file.
@interface PLCustomListController : PSListController
@end
