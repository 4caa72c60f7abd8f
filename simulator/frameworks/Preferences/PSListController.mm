#import "Preferences/PSListController.h"

#import "Preferences/PSTableCell.h"

@implementation PSRootController
@end

@implementation PSViewController

@synthesize specifier = _specifier, parentController = _parentController;

- (void)dealloc {
    [_specifier release];
    [super dealloc];
}

- (id)readPreferenceValue:(PSSpecifier*)specifier {
    return nil;
}

@end

@implementation PSListController

@synthesize table = _table;

- (instancetype)init {
    self = [super init];
    if (self == nil) return nil;
    _sections = [[NSMutableArray alloc] init];
    _cells = [[NSMutableDictionary alloc] init];
    return self;
}

- (void)dealloc {
    [_table setDataSource:nil];
    [_table setDelegate:nil];
    [_table release];
    [_specifiers release];
    [_sections release];
    [_cells release];
    [super dealloc];
}

- (void)loadView {
    [super loadView];
    _table = [[UITableView alloc] initWithFrame:[[self view] bounds] style:UITableViewStyleGrouped];
    [_table setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [_table setDataSource:self];
    [_table setDelegate:self];
    [[self view] addSubview:_table];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self reload];
}

#pragma mark The rows

- (NSArray*)specifiers {
    return _specifiers;
}

- (NSBundle*)bundle {
    return [NSBundle bundleForClass:[self class]];
}

- (NSArray*)loadSpecifiersFromPlistName:(NSString*)name target:(id)target {
    NSString* file = [name stringByAppendingPathExtension:@"plist"];
    NSDictionary* list = [NSDictionary
        dictionaryWithContentsOfFile:[[[self bundle] bundlePath] stringByAppendingPathComponent:file]];
    NSMutableArray* rows = [NSMutableArray array];
    for (NSDictionary* row in [list objectForKey:@"items"])
        [rows addObject:[PSSpecifier specifierWithDictionary:row target:target]];
    return rows;
}

- (void)reload {
    [_cells removeAllObjects];
    [_sections removeAllObjects];
    for (PSSpecifier* specifier in [self specifiers]) {
        const bool beginsGroup = [specifier cellType] == PSGroupCell;
        if (beginsGroup || [_sections count] == 0)
            [_sections
                addObject:[NSMutableArray
                              arrayWithObject:beginsGroup ? specifier : [PSSpecifier emptyGroupSpecifier]]];
        if (!beginsGroup) [[_sections lastObject] addObject:specifier];
    }
    [_table reloadData];
}

- (void)reloadSpecifiers {
    [_specifiers release];
    _specifiers = nil;
    [self reload];
}

- (void)reloadSpecifier:(PSSpecifier*)specifier {
    [[self cachedCellForSpecifier:specifier] refreshCellContentsWithSpecifier:specifier];
}

- (PSSpecifier*)specifierForID:(NSString*)identifier {
    for (PSSpecifier* specifier in [self specifiers])
        if ([[specifier identifier] isEqual:identifier]) return specifier;
    return nil;
}

- (NSIndexPath*)indexPathForSpecifier:(PSSpecifier*)specifier {
    for (NSUInteger section = 0; section < [_sections count]; ++section) {
        const NSUInteger place = [[_sections objectAtIndex:section] indexOfObjectIdenticalTo:specifier];
        if (place == NSNotFound || place == 0) continue;
        return [NSIndexPath indexPathForRow:static_cast<NSInteger>(place) - 1
                                  inSection:static_cast<NSInteger>(section)];
    }
    return nil;
}

- (PSSpecifier*)specifierAtIndexPath:(NSIndexPath*)path {
    NSArray* section = [_sections objectAtIndex:static_cast<NSUInteger>([path section])];
    return [section objectAtIndex:static_cast<NSUInteger>([path row]) + 1];
}

- (PSTableCell*)cachedCellForSpecifier:(PSSpecifier*)specifier {
    NSIndexPath* path = [self indexPathForSpecifier:specifier];
    return path != nil ? [_cells objectForKey:path] : nil;
}

- (id)controllerForSpecifier:(PSSpecifier*)specifier {
    if (NSString* bundle = [specifier propertyForKey:PSLazilyLoadedBundleKey])
        [specifier setDetailControllerClass:[[NSBundle bundleWithPath:bundle] principalClass]];
    PSViewController* pane = [[[[specifier detailControllerClass] alloc] init] autorelease];
    [pane setParentController:self];
    [pane setSpecifier:specifier];
    return pane;
}

#pragma mark What the table asks

- (PSSpecifier*)specifierOfGroup:(NSInteger)section {
    return [[_sections objectAtIndex:static_cast<NSUInteger>(section)] firstObject];
}

- (NSInteger)numberOfSectionsInTableView:(UITableView*)table {
    return static_cast<NSInteger>([_sections count]);
}

- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section {
    return static_cast<NSInteger>([[_sections objectAtIndex:static_cast<NSUInteger>(section)] count]) - 1;
}

- (NSString*)tableView:(UITableView*)table titleForHeaderInSection:(NSInteger)section {
    return [[self specifierOfGroup:section] name];
}

- (NSString*)tableView:(UITableView*)table titleForFooterInSection:(NSInteger)section {
    return [[self specifierOfGroup:section] propertyForKey:PSFooterTextGroupKey];
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path {
    PSSpecifier* specifier = [self specifierAtIndexPath:path];
    PSTableCell* cell = [_cells objectForKey:path];
    if (cell == nil) {
        Class cellClass = [PSTableCell cellClassForType:[specifier cellType]];
        cell = [[[cellClass alloc] initWithStyle:UITableViewCellStyleValue1
                                 reuseIdentifier:nil
                                       specifier:specifier] autorelease];
        [_cells setObject:cell forKey:path];
    }
    [cell refreshCellContentsWithSpecifier:specifier];
    return cell;
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path {
    PSSpecifier* specifier = [self specifierAtIndexPath:path];
    if ([specifier cellType] == PSButtonCell)
        [specifier performLegacyAction];
    else if (id pane = [self controllerForSpecifier:specifier])
        [[self navigationController] pushViewController:pane animated:YES];
}

@end

@implementation PSListItemsController

- (void)viewDidLoad {
    [super viewDidLoad];
    [self setTitle:[[self specifier] name]];
}

- (NSArray*)specifiers {
    if (_specifiers != nil) return _specifiers;
    NSMutableArray* items = [[NSMutableArray alloc] initWithObjects:[PSSpecifier emptyGroupSpecifier], nil];
    for (id value in [[self specifier] values]) {
        PSSpecifier* item =
            [PSSpecifier preferenceSpecifierNamed:[[[self specifier] titleDictionary] objectForKey:value]
                                           target:self
                                              set:nullptr
                                              get:nullptr
                                           detail:Nil
                                             cell:PSListItemCell
                                             edit:Nil];
        [item setProperty:value forKey:PSValueKey];
        [items addObject:item];
    }
    _specifiers = items;
    return _specifiers;
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path {
    UITableViewCell* cell = [super tableView:table cellForRowAtIndexPath:path];
    id value = [[self specifierAtIndexPath:path] propertyForKey:PSValueKey];
    const bool isChosen = [value isEqual:[[self specifier] performGetter]];
    [cell setAccessoryType:isChosen ? UITableViewCellAccessoryCheckmark : UITableViewCellAccessoryNone];
    return cell;
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path {
    PSSpecifier* item = [self specifierAtIndexPath:path];
    [[self specifier] performSetterWithValue:[item propertyForKey:PSValueKey]];
    [self reload];
    [static_cast<PSListController*>([self parentController]) reloadSpecifier:[self specifier]];
}

@end
