#import "Preferences/PSListController.h"

#import "Preferences/PSKeys.h"
#import "Preferences/PSRootController.h"
#import "Preferences/PSSpecifier.h"
#import "Preferences/PSTableCell.h"

#include <objc/runtime.h>

@implementation PSListController

- (instancetype)init {
    self = [super init];
    if (!self) return nil;
    _bundleControllers = [[NSMutableArray alloc] init];
    _cells = [[NSMutableDictionary alloc] init];
    _groups = [[NSMutableArray alloc] init];
    return self;
}

- (instancetype)initForContentSize:(CGSize)size {
    return [self init];
}

- (void)dealloc {
    [_table setDataSource:nil];
    [_table setDelegate:nil];
    [_specifiers release];
    [_table release];
    [_specifierID release];
    [_bundleControllers release];
    [_cells release];
    [_groups release];
    [super dealloc];
}

#pragma mark The screen

- (UITableView*)table {
    return _table;
}

- (NSInteger)tableViewStyle {
    return UITableViewStyleGrouped;
}

- (void)loadView {
    [super loadView];
    _table = [[UITableView alloc] initWithFrame:[[self view] bounds]
                                          style:static_cast<UITableViewStyle>([self tableViewStyle])];
    [_table setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [_table setDataSource:self];
    [_table setDelegate:self];
    [[self view] addSubview:_table];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    [self specifiers];
    [self reload];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self reload];
}

- (void)viewDidAppear:(BOOL)animated {
    [super viewDidAppear:animated];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
}

- (void)viewDidDisappear:(BOOL)animated {
    [super viewDidDisappear:animated];
}

- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    [_table setFrame:[[self view] bounds]];
}

- (void)setTitle:(NSString*)title {
    [super setTitle:title];
}

#pragma mark The row that opened this pane

- (PSSpecifier*)specifier {
    return [super specifier];
}

- (void)setSpecifier:(PSSpecifier*)specifier {
    [super setSpecifier:specifier];
    [_specifierID release];
    _specifierID = [[specifier identifier] copy];
}

- (NSString*)specifierID {
    return _specifierID;
}

#pragma mark The rows

- (NSArray*)specifiers {
    return _specifiers;
}

- (void)setSpecifiers:(NSArray*)specifiers {
    if (specifiers != _specifiers) {
        [_specifiers release];
        _specifiers = [specifiers retain];
    }
    [self reload];
}

- (NSBundle*)bundle {
    return [NSBundle bundleForClass:[self class]];
}

- (NSArray*)loadSpecifiersFromPlistName:(NSString*)name target:(id)target {
    return [self loadSpecifiersFromPlistName:name target:target bundle:[self bundle]];
}

- (NSArray*)loadSpecifiersFromPlistName:(NSString*)name target:(id)target bundle:(NSBundle*)bundle {
    NSDictionary* list = [NSDictionary
        dictionaryWithContentsOfFile:
            [[bundle bundlePath] stringByAppendingPathComponent:[name stringByAppendingString:@".plist"]]];
    NSString* title = [list objectForKey:@"title"];
    if ([title isKindOfClass:[NSString class]])
        [self setTitle:[bundle localizedStringForKey:title value:title table:name]];
    return PSSpecifiersFromPropertyList(list, target, bundle, name);
}

- (void)reload {
    [_cells removeAllObjects];
    [self prepareGroups];
    [_table reloadData];
}

- (void)reloadSpecifiers {
    [_specifiers release];
    _specifiers = nil;
    [self specifiers];
    [self reload];
}

- (void)reloadSpecifier:(PSSpecifier*)specifier {
    [self reloadSpecifier:specifier animated:NO];
}

- (void)reloadSpecifier:(PSSpecifier*)specifier animated:(BOOL)animated {
    [[self cachedCellForSpecifier:specifier] refreshCellContentsWithSpecifier:specifier];
}

- (void)reloadSpecifierID:(NSString*)identifier {
    [self reloadSpecifierID:identifier animated:NO];
}

- (void)reloadSpecifierID:(NSString*)identifier animated:(BOOL)animated {
    [self reloadSpecifier:[self specifierForID:identifier] animated:animated];
}

- (void)reloadSpecifierAtIndex:(NSInteger)index animated:(BOOL)animated {
    [self reloadSpecifier:[self specifierAtIndex:index] animated:animated];
}

- (BOOL)shouldReloadSpecifiersOnResume {
    return NO;
}

- (PSTableCell*)cachedCellForSpecifier:(PSSpecifier*)specifier {
    NSIndexPath* path = [self indexPathForSpecifier:specifier];
    return path ? [_cells objectForKey:path] : nil;
}

- (PSTableCell*)cachedCellForSpecifierID:(NSString*)identifier {
    return [self cachedCellForSpecifier:[self specifierForID:identifier]];
}

#pragma mark Opening

- (void)lazyLoadBundle:(PSSpecifier*)specifier {
    NSString* path = [specifier propertyForKey:PSLazilyLoadedBundleKey];
    NSBundle* bundle = path ? [NSBundle bundleWithPath:path] : nil;
    if (![bundle load]) {
        NSLog(@"Settings: the bundle at %@ could not be loaded", path);
        return;
    }
    Class paneClass = [bundle principalClass];
    if ([[specifier propertyForKey:PSBundleOverridePrincipalClassKey] boolValue]) {
        Class named = objc_getClass([[specifier propertyForKey:PSDetailControllerClassKey] UTF8String]);
        if (named) paneClass = named;
    }
    [specifier setDetailControllerClass:paneClass];
    [specifier setControllerLoadAction:nullptr];
    [specifier removePropertyForKey:PSLazilyLoadedBundleKey];
}

- (id)controllerForSpecifier:(PSSpecifier*)specifier {
    if (SEL load = [specifier controllerLoadAction]) [self performSelector:load withObject:specifier];
    Class paneClass = [specifier detailControllerClass];
    if (![paneClass isSubclassOfClass:[PSViewController class]]) return nil;
    PSViewController* pane = [[[paneClass alloc] init] autorelease];
    [pane setRootController:[self rootController]];
    [pane setParentController:self];
    [pane setSpecifier:specifier];
    return pane;
}

- (void)pushController:(id)controller animate:(BOOL)animated {
    [super pushController:controller animate:animated];
}

- (void)showController:(id)controller animate:(BOOL)animated {
    [super showController:controller animate:animated];
}

- (BOOL)performActionForSpecifier:(PSSpecifier*)specifier {
    SEL action = [specifier legacyAction];
    if (!action) return NO;
    [[specifier target] performSelector:action withObject:specifier];
    return YES;
}

- (BOOL)performButtonActionForSpecifier:(PSSpecifier*)specifier {
    SEL action = [specifier buttonAction];
    if (!action) return [self performActionForSpecifier:specifier];
    [[specifier target] performSelector:action withObject:specifier];
    return YES;
}

@end

@implementation PSEditableListController
@end

@implementation PSDetailController
@end
