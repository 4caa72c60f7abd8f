#import "Preferences/PSListController.h"
#import "Preferences/PSSpecifier.h"

@implementation PSListController (Groups)

// Rows before the first group's own specifier form a group without one, which begins at −1.
- (void)prepareGroups {
    [_groups removeAllObjects];
    NSArray* all = [self specifiers];
    for (NSUInteger index = 0; index < [all count]; ++index) {
        BOOL isGroup = [[all objectAtIndex:index] cellType] == PSGroupCell;
        if (isGroup)
            [_groups addObject:[NSNumber numberWithInteger:static_cast<NSInteger>(index)]];
        else if (index == 0)
            [_groups addObject:@(-1)];
    }
}

// Where the rows of a group begin and end in the list of all.
- (NSRange)_rowsOfGroup:(NSInteger)group {
    if (group < 0 || group >= [self numberOfGroups]) return NSMakeRange(NSNotFound, 0);
    NSInteger first = [[_groups objectAtIndex:static_cast<NSUInteger>(group)] integerValue] + 1;
    NSInteger end = group + 1 < [self numberOfGroups]
                        ? [[_groups objectAtIndex:static_cast<NSUInteger>(group) + 1] integerValue]
                        : static_cast<NSInteger>([[self specifiers] count]);
    return NSMakeRange(static_cast<NSUInteger>(first), static_cast<NSUInteger>(end - first));
}

- (PSSpecifier*)specifierForID:(NSString*)identifier {
    for (PSSpecifier* specifier in [self specifiers])
        if ([[specifier identifier] isEqual:identifier]) return specifier;
    return nil;
}

- (NSArray*)specifiersForIDs:(NSArray*)identifiers {
    NSMutableArray* found = [NSMutableArray array];
    for (NSString* identifier in identifiers)
        if (PSSpecifier* specifier = [self specifierForID:identifier]) [found addObject:specifier];
    return found;
}

- (PSSpecifier*)specifierAtIndex:(NSInteger)index {
    NSArray* all = [self specifiers];
    if (index < 0 || static_cast<NSUInteger>(index) >= [all count]) return nil;
    return [all objectAtIndex:static_cast<NSUInteger>(index)];
}

- (PSSpecifier*)specifierAtIndexPath:(NSIndexPath*)path {
    return [self specifierAtIndex:[self indexForIndexPath:path]];
}

- (NSInteger)indexForIndexPath:(NSIndexPath*)path {
    NSRange rows = [self _rowsOfGroup:[path section]];
    if (path == nil || static_cast<NSUInteger>([path row]) >= rows.length) return NSNotFound;
    return static_cast<NSInteger>(rows.location) + [path row];
}

- (NSIndexPath*)indexPathForSpecifier:(PSSpecifier*)specifier {
    NSInteger group = 0;
    NSInteger row = 0;
    if (![self getGroup:&group row:&row ofSpecifier:specifier] || row < 0) return nil;
    return [NSIndexPath indexPathForRow:row inSection:group];
}

- (NSInteger)indexOfSpecifier:(PSSpecifier*)specifier {
    NSUInteger index = specifier ? [[self specifiers] indexOfObjectIdenticalTo:specifier] : NSNotFound;
    return index == NSNotFound || [self specifiers] == nil ? NSNotFound : static_cast<NSInteger>(index);
}

- (NSInteger)indexOfSpecifierID:(NSString*)identifier {
    return [self indexOfSpecifier:[self specifierForID:identifier]];
}

- (BOOL)containsSpecifier:(PSSpecifier*)specifier {
    return [self indexOfSpecifier:specifier] != NSNotFound ? YES : NO;
}

- (NSArray*)specifiersInGroup:(NSInteger)group {
    NSRange rows = [self _rowsOfGroup:group];
    if (rows.location == NSNotFound) return @[];
    BOOL hasOwn = [[_groups objectAtIndex:static_cast<NSUInteger>(group)] integerValue] >= 0;
    if (hasOwn) rows = NSMakeRange(rows.location - 1, rows.length + 1);
    return [[self specifiers] subarrayWithRange:rows];
}

- (NSInteger)numberOfGroups {
    return static_cast<NSInteger>([_groups count]);
}

- (NSInteger)rowsForGroup:(NSInteger)group {
    return static_cast<NSInteger>([self _rowsOfGroup:group].length);
}

// The row of a group's own specifier is −1.
- (BOOL)getGroup:(NSInteger*)group row:(NSInteger*)row ofSpecifier:(PSSpecifier*)specifier {
    NSInteger index = [self indexOfSpecifier:specifier];
    if (index == NSNotFound) return NO;
    for (NSInteger candidate = [self numberOfGroups] - 1; candidate >= 0; --candidate) {
        NSInteger own = [[_groups objectAtIndex:static_cast<NSUInteger>(candidate)] integerValue];
        if (own > index) continue;
        if (group) *group = candidate;
        if (row) *row = index - own - 1;
        return YES;
    }
    return NO;
}

- (BOOL)getGroup:(NSInteger*)group row:(NSInteger*)row ofSpecifierID:(NSString*)identifier {
    return [self getGroup:group row:row ofSpecifier:[self specifierForID:identifier]];
}

@end
