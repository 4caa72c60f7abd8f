#pragma once

#import "Preferences/PSListController.h"

/// The list of values that a row of type PSLinkListCell opens; the chosen one carries a check mark.
@interface PSListItemsController : PSListController {
    NSInteger _rowToSelect;
    PSSpecifier* _lastSelectedSpecifier;
    id _retainedTarget;
}
- (NSArray*)itemsFromParent;
- (NSArray*)itemsFromDataSource;
/// Stores the value of the row (an NSIndexPath) as the value of the row that opened this list.
- (void)listItemSelected:(id)path;
@end
