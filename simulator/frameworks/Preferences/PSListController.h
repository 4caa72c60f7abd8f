#pragma once

#import "Preferences/PSSpecifier.h"
#import "UIKit/UIKit.h"

@class PSTableCell;

/// The navigation that preference panes are pushed onto.
@interface PSRootController : UINavigationController
@end

/// A preference pane of any kind.
@interface PSViewController : UIViewController {
    PSSpecifier* _specifier;
    UIViewController* _parentController;
}
/// The row that opened this pane.
@property (nonatomic, retain) PSSpecifier* specifier;
/// The pane that this row stands in; not retained.
@property (nonatomic, assign) UIViewController* parentController;
/// nil, since no row here names a preference file; panes that store their own values override it.
- (id)readPreferenceValue:(PSSpecifier*)specifier;
@end

/// A pane that is a list of rows. Subclasses give the rows in `specifiers`.
@interface PSListController : PSViewController <UITableViewDataSource, UITableViewDelegate> {
    NSArray* _specifiers;
    UITableView* _table;
    NSMutableArray* _sections;   // each an array of the group's own specifier and its rows
    NSMutableDictionary* _cells; // of the rows shown so far, by index path
}
@property (nonatomic, readonly) UITableView* table;

/// The rows and groups; made on first use.
- (NSArray*)specifiers;
/// The rows of the file NAME.plist of the bundle.
- (NSArray*)loadSpecifiersFromPlistName:(NSString*)name target:(id)target;
/// The bundle of the pane's class.
- (NSBundle*)bundle;

/// Shows the rows anew.
- (void)reload;
/// Asks for the rows anew.
- (void)reloadSpecifiers;
/// Shows one row anew.
- (void)reloadSpecifier:(PSSpecifier*)specifier;

/// nil for what is not there.
- (PSSpecifier*)specifierForID:(NSString*)identifier;
- (NSIndexPath*)indexPathForSpecifier:(PSSpecifier*)specifier;
- (PSTableCell*)cachedCellForSpecifier:(PSSpecifier*)specifier;

/// The pane that the row opens; nil for a row that opens none. A row of a bundle loads that first: its
/// principal class is the pane's.
- (id)controllerForSpecifier:(PSSpecifier*)specifier;
@end

/// The list of values that a row of type PSLinkListCell opens; the chosen one carries a check mark.
@interface PSListItemsController : PSListController
@end
