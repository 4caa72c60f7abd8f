#pragma once

#import "Preferences/PSViewController.h"

@class PSSpecifier, PSTableCell;

/// A pane that is a list of rows. Subclasses give the rows in `specifiers`.
@interface PSListController : PSViewController {
    NSArray* _specifiers;
    UITableView* _table;
    NSString* _specifierID;
    NSMutableArray* _bundleControllers;
    NSMutableDictionary* _cells; // of the rows shown so far, by row
    NSMutableArray* _groups;     // where each group's own specifier lies in `_specifiers`
}
- (instancetype)initForContentSize:(CGSize)size;
- (UITableView*)table;
- (NSInteger)tableViewStyle;

/// The rows and groups; made on first use.
- (NSArray*)specifiers;
- (void)setSpecifiers:(NSArray*)specifiers;
- (NSString*)specifierID;
/// The file NAME.plist of the bundle; its title becomes the pane's. Autoreleased, a mutable array.
- (NSArray*)loadSpecifiersFromPlistName:(NSString*)name target:(id)target;
- (NSArray*)loadSpecifiersFromPlistName:(NSString*)name target:(id)target bundle:(NSBundle*)bundle;
/// The bundle of the pane's class.
- (NSBundle*)bundle;

/// Shows the rows anew.
- (void)reload;
/// Asks for the rows anew.
- (void)reloadSpecifiers;
- (void)reloadSpecifier:(PSSpecifier*)specifier;
- (void)reloadSpecifier:(PSSpecifier*)specifier animated:(BOOL)animated;
- (void)reloadSpecifierID:(NSString*)identifier;
- (void)reloadSpecifierID:(NSString*)identifier animated:(BOOL)animated;
- (void)reloadSpecifierAtIndex:(NSInteger)index animated:(BOOL)animated;
- (BOOL)shouldReloadSpecifiersOnResume;

- (PSTableCell*)cachedCellForSpecifier:(PSSpecifier*)specifier;
- (PSTableCell*)cachedCellForSpecifierID:(NSString*)identifier;

/// The pane that the row opens; nil for a row that opens none.
- (id)controllerForSpecifier:(PSSpecifier*)specifier;
/// Loads the row's bundle, whose principal class becomes the class of the row's pane.
- (void)lazyLoadBundle:(PSSpecifier*)specifier;
/// NO when the row has no action.
- (BOOL)performActionForSpecifier:(PSSpecifier*)specifier;
- (BOOL)performButtonActionForSpecifier:(PSSpecifier*)specifier;
@end

/// Finding rows. Indexes count rows and groups alike.
@interface PSListController (Groups)
- (PSSpecifier*)specifierForID:(NSString*)identifier;
- (NSArray*)specifiersForIDs:(NSArray*)identifiers;
/// nil outside the list.
- (PSSpecifier*)specifierAtIndex:(NSInteger)index;
- (PSSpecifier*)specifierAtIndexPath:(NSIndexPath*)path;
/// NSNotFound for what is not there.
- (NSInteger)indexForIndexPath:(NSIndexPath*)path;
- (NSIndexPath*)indexPathForSpecifier:(PSSpecifier*)specifier;
- (NSInteger)indexOfSpecifier:(PSSpecifier*)specifier;
- (NSInteger)indexOfSpecifierID:(NSString*)identifier;
- (BOOL)containsSpecifier:(PSSpecifier*)specifier;
/// The group's own specifier, if it has one, and its rows.
- (NSArray*)specifiersInGroup:(NSInteger)group;
- (NSInteger)numberOfGroups;
- (NSInteger)rowsForGroup:(NSInteger)group;
- (BOOL)getGroup:(NSInteger*)group row:(NSInteger*)row ofSpecifier:(PSSpecifier*)specifier;
- (BOOL)getGroup:(NSInteger*)group row:(NSInteger*)row ofSpecifierID:(NSString*)identifier;
/// Finds the groups anew after a change of the rows; for the framework.
- (void)prepareGroups;
@end

/// Changing the rows. What is not in the list cannot be removed and inserts nothing after it.
@interface PSListController (Editing)
- (void)beginUpdates;
- (void)endUpdates;
- (void)addSpecifier:(PSSpecifier*)specifier;
- (void)addSpecifier:(PSSpecifier*)specifier animated:(BOOL)animated;
- (void)addSpecifiersFromArray:(NSArray*)specifiers;
- (void)addSpecifiersFromArray:(NSArray*)specifiers animated:(BOOL)animated;
- (void)insertSpecifier:(PSSpecifier*)specifier atIndex:(NSInteger)index;
- (void)insertSpecifier:(PSSpecifier*)specifier atIndex:(NSInteger)index animated:(BOOL)animated;
- (void)insertSpecifier:(PSSpecifier*)specifier afterSpecifier:(PSSpecifier*)other;
- (void)insertSpecifier:(PSSpecifier*)specifier afterSpecifier:(PSSpecifier*)other animated:(BOOL)animated;
- (void)insertSpecifier:(PSSpecifier*)specifier afterSpecifierID:(NSString*)identifier;
- (void)insertSpecifier:(PSSpecifier*)specifier
       afterSpecifierID:(NSString*)identifier
               animated:(BOOL)animated;
- (void)insertSpecifier:(PSSpecifier*)specifier atEndOfGroup:(NSInteger)group;
- (void)insertSpecifier:(PSSpecifier*)specifier atEndOfGroup:(NSInteger)group animated:(BOOL)animated;
- (void)insertContiguousSpecifiers:(NSArray*)specifiers afterSpecifierID:(NSString*)identifier;
- (void)insertContiguousSpecifiers:(NSArray*)specifiers
                  afterSpecifierID:(NSString*)identifier
                          animated:(BOOL)animated;
- (void)insertContiguousSpecifiers:(NSArray*)specifiers afterSpecifier:(PSSpecifier*)other;
- (void)insertContiguousSpecifiers:(NSArray*)specifiers
                    afterSpecifier:(PSSpecifier*)other
                          animated:(BOOL)animated;
- (void)insertContiguousSpecifiers:(NSArray*)specifiers atIndex:(NSInteger)index;
- (void)insertContiguousSpecifiers:(NSArray*)specifiers atIndex:(NSInteger)index animated:(BOOL)animated;
- (void)removeSpecifier:(PSSpecifier*)specifier;
- (void)removeSpecifier:(PSSpecifier*)specifier animated:(BOOL)animated;
- (void)removeSpecifierID:(NSString*)identifier;
- (void)removeSpecifierID:(NSString*)identifier animated:(BOOL)animated;
- (void)removeContiguousSpecifiers:(NSArray*)specifiers;
- (void)removeContiguousSpecifiers:(NSArray*)specifiers animated:(BOOL)animated;
- (void)replaceContiguousSpecifiers:(NSArray*)old withSpecifiers:(NSArray*)specifiers;
- (void)replaceContiguousSpecifiers:(NSArray*)old withSpecifiers:(NSArray*)specifiers animated:(BOOL)animated;
@end

/// What the table asks.
@interface PSListController (Table) <UITableViewDataSource, UITableViewDelegate>
- (NSInteger)numberOfSectionsInTableView:(UITableView*)table;
- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section;
- (PSTableCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path;
- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path;
- (CGFloat)tableView:(UITableView*)table heightForRowAtIndexPath:(NSIndexPath*)path;
- (NSString*)tableView:(UITableView*)table titleForHeaderInSection:(NSInteger)section;
- (NSString*)tableView:(UITableView*)table titleForFooterInSection:(NSInteger)section;
- (UIView*)tableView:(UITableView*)table viewForHeaderInSection:(NSInteger)section;
- (CGFloat)tableView:(UITableView*)table heightForHeaderInSection:(NSInteger)section;
@end

/// A list whose rows can be deleted and moved.
@interface PSEditableListController : PSListController
@end

/// A pane about one thing.
@interface PSDetailController : PSViewController
@end
