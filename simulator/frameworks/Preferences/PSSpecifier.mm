#import "Preferences/PSSpecifier.h"

#import "Preferences/PSTableCell.h"

#include <objc/runtime.h>

@implementation PSSpecifier

@synthesize name = _name, cellType = _cellType, detailControllerClass = _detailControllerClass;
@synthesize legacyAction = _legacyAction, values = _values, titleDictionary = _titleDictionary;

+ (instancetype)preferenceSpecifierNamed:(NSString*)name
                                  target:(id)target
                                     set:(SEL)setter
                                     get:(SEL)getter
                                  detail:(Class)detail
                                    cell:(NSInteger)cellType
                                    edit:(Class)editPane {
    PSSpecifier* specifier = [[[self alloc] init] autorelease];
    specifier->_properties = [[NSMutableDictionary alloc] init];
    specifier->_name = [name retain];
    specifier->_target = target;
    specifier->_setter = setter;
    specifier->_getter = getter;
    specifier->_detailControllerClass = detail;
    specifier->_cellType = cellType;
    return specifier;
}

+ (instancetype)specifierWithDictionary:(NSDictionary*)row target:(id)target {
    NSString* paneClass = [row objectForKey:PSDetailControllerClassKey];
    NSString* action = [row objectForKey:PSActionKey];
    NSString* label = [row objectForKey:PSTitleKey];
    PSSpecifier* specifier =
        [self preferenceSpecifierNamed:label
                                target:target
                                   set:@selector(setPreferenceValue:specifier:)
                                   get:@selector(readPreferenceValue:)
                                detail:paneClass ? objc_getClass([paneClass UTF8String]) : Nil
                                  cell:[PSTableCell cellTypeFromString:[row objectForKey:PSTableCellClassKey]]
                                  edit:Nil];
    [specifier->_properties setDictionary:row];
    if ([specifier identifier] == nil && label != nil) [specifier setIdentifier:label];
    if (action != nil) [specifier setLegacyAction:NSSelectorFromString(action)];
    if (NSArray* values = [row objectForKey:PSValidValuesKey])
        [specifier setValues:values titles:[row objectForKey:PSValidTitlesKey]];
    return specifier;
}

+ (instancetype)emptyGroupSpecifier {
    return [self preferenceSpecifierNamed:nil
                                   target:nil
                                      set:nullptr
                                      get:nullptr
                                   detail:Nil
                                     cell:PSGroupCell
                                     edit:Nil];
}

- (void)dealloc {
    [_name release];
    [_values release];
    [_titleDictionary release];
    [_properties release];
    [super dealloc];
}

- (id)propertyForKey:(NSString*)key {
    return [_properties objectForKey:key];
}

- (void)setProperty:(id)value forKey:(NSString*)key {
    [_properties setObject:value forKey:key];
}

- (NSString*)identifier {
    return [self propertyForKey:PSIDKey];
}

- (void)setIdentifier:(NSString*)identifier {
    [self setProperty:identifier forKey:PSIDKey];
}

- (void)setValues:(NSArray*)values titles:(NSArray*)titles {
    [_values autorelease];
    _values = [values retain];
    [_titleDictionary autorelease];
    _titleDictionary = [[NSDictionary alloc] initWithObjects:titles forKeys:values];
}

- (id)performGetter {
    return _getter ? [_target performSelector:_getter withObject:self] : nil;
}

- (void)performSetterWithValue:(id)value {
    if (_setter) [_target performSelector:_setter withObject:value withObject:self];
}

- (void)performLegacyAction {
    if (_legacyAction) [_target performSelector:_legacyAction withObject:self];
}

@end
