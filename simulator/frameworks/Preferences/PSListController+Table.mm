#import "Preferences/PSKeys.h"
#import "Preferences/PSListController.h"
#import "Preferences/PSSpecifier.h"
#import "Preferences/PSTableCell.h"

namespace {

constexpr CGFloat usualRowHeight = 44;
constexpr CGFloat headerHeight = 35;

NSString* textIn(NSDictionary* dictionary, NSString* key, NSString* otherwise) {
    NSString* text = [dictionary objectForKey:key];
    return [text isKindOfClass:[NSString class]] ? text : otherwise;
}

} // namespace

@implementation PSListController (Table)

- (NSInteger)numberOfSectionsInTableView:(UITableView*)table {
    return [self numberOfGroups];
}

- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section {
    return [self rowsForGroup:section];
}

- (PSTableCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path {
    PSSpecifier* specifier = [self specifierAtIndexPath:path];
    PSTableCell* cell = [_cells objectForKey:path];
    if (cell == nil) {
        Class cellClass = [PSTableCell cellClassForSpecifier:specifier];
        cell = [[[cellClass alloc] initWithStyle:UITableViewCellStyleValue1
                                 reuseIdentifier:nil
                                       specifier:specifier] autorelease];
        [_cells setObject:cell forKey:path];
    }
    [cell refreshCellContentsWithSpecifier:specifier];
    return cell;
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path {
    [table deselectRowAtIndexPath:path animated:YES];
    PSSpecifier* specifier = [self specifierAtIndexPath:path];
    switch ([specifier cellType]) {
    case PSLinkCell:
    case PSLinkListCell:
    case PSListItemCell:
    case PSGiantIconCell:
    case PSGiantCell:
        if (id pane = [self controllerForSpecifier:specifier]) [self pushController:pane animate:YES];
        break;
    case PSButtonCell:
        if ([specifier propertyForKey:PSConfirmationKey])
            [self _confirm:specifier];
        else
            [self performButtonActionForSpecifier:specifier];
        break;
    default:
        break;
    }
}

- (void)_confirm:(PSSpecifier*)specifier {
    NSDictionary* texts = [specifier propertyForKey:PSConfirmationKey];
    UIAlertController* sheet =
        [UIAlertController alertControllerWithTitle:textIn(texts, PSConfirmationTitleKey, nil)
                                            message:textIn(texts, PSConfirmationPromptKey, nil)
                                     preferredStyle:UIAlertControllerStyleActionSheet];
    BOOL destructive = [[texts objectForKey:PSConfirmationDestructiveKey] boolValue];
    [sheet addAction:[UIAlertAction actionWithTitle:textIn(texts, PSConfirmationOKKey, @"OK")
                                              style:destructive ? UIAlertActionStyleDestructive
                                                                : UIAlertActionStyleDefault
                                            handler:^(UIAlertAction*) {
                                                [self _confirmed:specifier];
                                            }]];
    [sheet addAction:[UIAlertAction actionWithTitle:textIn(texts, PSConfirmationCancelKey, @"Cancel")
                                              style:UIAlertActionStyleCancel
                                            handler:nil]];
    [[sheet popoverPresentationController] setSourceView:[self view]];
    [self presentViewController:sheet animated:YES completion:nil];
}

- (void)_confirmed:(PSSpecifier*)specifier {
    if (SEL action = [specifier confirmationAction])
        [[specifier target] performSelector:action withObject:specifier];
    else
        [self performButtonActionForSpecifier:specifier];
}

- (CGFloat)tableView:(UITableView*)table heightForRowAtIndexPath:(NSIndexPath*)path {
    NSNumber* height = [[self specifierAtIndexPath:path] propertyForKey:PSTableCellHeightKey];
    return height ? [height doubleValue] : usualRowHeight;
}

// nil for a group without a specifier of its own.
- (PSSpecifier*)_specifierOfGroup:(NSInteger)section {
    PSSpecifier* first = [[self specifiersInGroup:section] firstObject];
    return [first cellType] == PSGroupCell ? first : nil;
}

- (NSString*)tableView:(UITableView*)table titleForHeaderInSection:(NSInteger)section {
    return [[self _specifierOfGroup:section] name];
}

- (NSString*)tableView:(UITableView*)table titleForFooterInSection:(NSInteger)section {
    return [[self _specifierOfGroup:section] propertyForKey:PSFooterTextGroupKey];
}

- (UIView*)tableView:(UITableView*)table viewForHeaderInSection:(NSInteger)section {
    return nil;
}

- (CGFloat)tableView:(UITableView*)table heightForHeaderInSection:(NSInteger)section {
    return [[self tableView:table titleForHeaderInSection:section] length] > 0 ? headerHeight : 0;
}

@end
