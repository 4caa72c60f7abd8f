#import "Preferences/PSListItemsController.h"

#import "Preferences/PSKeys.h"
#import "Preferences/PSSpecifier.h"
#import "Preferences/PSTableCell.h"

@implementation PSListItemsController

- (void)dealloc {
    [_lastSelectedSpecifier release];
    [_retainedTarget release];
    [super dealloc];
}

- (void)setSpecifier:(PSSpecifier*)specifier {
    [super setSpecifier:specifier];
    [_retainedTarget release];
    _retainedTarget = [[specifier target] retain];
}

- (NSArray*)specifiers {
    if (_specifiers == nil) {
        BOOL fromSource = [[self specifier] propertyForKey:PSValuesDataSourceKey] != nil ? YES : NO;
        _specifiers = [fromSource ? [self itemsFromDataSource] : [self itemsFromParent] retain];
    }
    return _specifiers;
}

- (NSArray*)itemsFromParent {
    NSMutableArray* items = [NSMutableArray arrayWithObject:[PSSpecifier emptyGroupSpecifier]];
    for (id value in [[self specifier] values]) {
        NSString* title = [[[self specifier] titleDictionary] objectForKey:value];
        PSSpecifier* item = [PSSpecifier preferenceSpecifierNamed:title
                                                           target:self
                                                              set:nullptr
                                                              get:nullptr
                                                           detail:Nil
                                                             cell:PSListItemCell
                                                             edit:Nil];
        [item setProperty:value forKey:PSValueKey];
        [items addObject:item];
    }
    return items;
}

- (NSArray*)itemsFromDataSource {
    [[self specifier] loadValuesAndTitlesFromDataSource];
    return [self itemsFromParent];
}

- (PSTableCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path {
    PSTableCell* cell = [super tableView:table cellForRowAtIndexPath:path];
    id chosen = [[self specifier] performGetter];
    id value = [[self specifierAtIndexPath:path] propertyForKey:PSValueKey];
    [cell setChecked:[value isEqual:chosen] ? YES : NO];
    return cell;
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path {
    [table deselectRowAtIndexPath:path animated:YES];
    [self listItemSelected:path];
}

- (void)listItemSelected:(id)path {
    PSSpecifier* item = [[self specifierAtIndexPath:path] retain];
    [_lastSelectedSpecifier release];
    _lastSelectedSpecifier = item;
    _rowToSelect = [path row];
    [[self specifier] performSetterWithValue:[item propertyForKey:PSValueKey]];
    [self reload];
    if ([[self parentController] isKindOfClass:[PSListController class]])
        [static_cast<PSListController*>([self parentController]) reloadSpecifier:[self specifier]];
}

@end
