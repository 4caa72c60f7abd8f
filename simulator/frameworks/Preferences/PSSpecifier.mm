#import "Preferences/PSSpecifier.h"

#import "Preferences/PSKeys.h"

@implementation PSSpecifier

@synthesize name = _name, buttonAction = _buttonAction, confirmationAction = _confirmationAction;
@synthesize controllerLoadAction = _controllerLoadAction, legacyAction = action, target, cellType;
@synthesize detailControllerClass, editPaneClass, values = _values, titleDictionary = _titleDict;
@synthesize shortTitleDictionary = _shortTitleDict, userInfo = _userInfo;

+ (instancetype)preferenceSpecifierNamed:(NSString*)name
                                  target:(id)target
                                     set:(SEL)setter
                                     get:(SEL)getter
                                  detail:(Class)detail
                                    cell:(NSInteger)cellType
                                    edit:(Class)editPane {
    return [[[self alloc] initWithName:name
                                target:target
                                   set:setter
                                   get:getter
                                detail:detail
                                  cell:cellType
                                  edit:editPane] autorelease];
}

- (instancetype)initWithName:(NSString*)name
                      target:(id)rowTarget
                         set:(SEL)rowSetter
                         get:(SEL)rowGetter
                      detail:(Class)detail
                        cell:(NSInteger)type
                        edit:(Class)editPane {
    self = [super init];
    if (!self) return nil;
    _properties = [[NSMutableDictionary alloc] init];
    _name = [name retain];
    target = rowTarget;
    setter = rowSetter;
    getter = rowGetter;
    detailControllerClass = detail;
    cellType = type;
    editPaneClass = editPane;
    return self;
}

- (instancetype)init {
    return [self initWithName:nil target:nil set:nullptr get:nullptr detail:Nil cell:PSGroupCell edit:Nil];
}

- (void)dealloc {
    [_name release];
    [_values release];
    [_titleDict release];
    [_shortTitleDict release];
    [_properties release];
    [_userInfo release];
    [super dealloc];
}

+ (instancetype)emptyGroupSpecifier {
    return [self groupSpecifierWithName:nil];
}

+ (instancetype)groupSpecifierWithName:(NSString*)name {
    return [self groupSpecifierWithID:nil name:name];
}

+ (instancetype)groupSpecifierWithID:(NSString*)identifier {
    return [self groupSpecifierWithID:identifier name:nil];
}

+ (instancetype)groupSpecifierWithID:(NSString*)identifier name:(NSString*)name {
    PSSpecifier* group = [self preferenceSpecifierNamed:name
                                                 target:nil
                                                    set:nullptr
                                                    get:nullptr
                                                 detail:Nil
                                                   cell:PSGroupCell
                                                   edit:Nil];
    [group setIdentifier:identifier];
    return group;
}

+ (instancetype)deleteButtonSpecifierWithName:(NSString*)name target:(id)target action:(SEL)action {
    PSSpecifier* button = [self preferenceSpecifierNamed:name
                                                  target:target
                                                     set:nullptr
                                                     get:nullptr
                                                  detail:Nil
                                                    cell:PSButtonCell
                                                    edit:Nil];
    [button setButtonAction:action];
    return button;
}

#pragma mark Properties

- (id)propertyForKey:(NSString*)key {
    return [_properties objectForKey:key];
}

- (void)setProperty:(id)value forKey:(NSString*)key {
    if (value)
        [_properties setObject:value forKey:key];
    else
        [self removePropertyForKey:key];
}

- (void)removePropertyForKey:(NSString*)key {
    [_properties removeObjectForKey:key];
}

- (id)objectForKeyedSubscript:(NSString*)key {
    return [self propertyForKey:key];
}

- (void)setObject:(id)value forKeyedSubscript:(NSString*)key {
    [self setProperty:value forKey:key];
}

- (NSMutableDictionary*)properties {
    return _properties;
}

- (void)setProperties:(NSDictionary*)properties {
    NSMutableDictionary* copied = [properties mutableCopy];
    [_properties release];
    _properties = copied ? copied : [[NSMutableDictionary alloc] init];
}

- (NSString*)identifier {
    return [self propertyForKey:PSIDKey];
}

- (void)setIdentifier:(NSString*)identifier {
    [self setProperty:identifier forKey:PSIDKey];
}

#pragma mark Values

- (void)setValues:(NSArray*)values titles:(NSArray*)titles {
    [self setValues:values titles:titles shortTitles:nil];
}

- (void)setValues:(NSArray*)values titles:(NSArray*)titles shortTitles:(NSArray*)shortTitles {
    [self setValues:values titles:titles shortTitles:shortTitles usingLocalizedTitleSorting:NO];
}

- (void)setValues:(NSArray*)values
                        titles:(NSArray*)titles
                   shortTitles:(NSArray*)shortTitles
    usingLocalizedTitleSorting:(BOOL)sorted {
    if ([values count] != [titles count])
        [NSException raise:NSInvalidArgumentException
                    format:@"-[PSSpecifier setValues:titles:...]: %lu values, but %lu titles", [values count],
                           [titles count]];
    NSDictionary* titleOfValue = [NSDictionary dictionaryWithObjects:titles ? titles : @[]
                                                             forKeys:values ? values : @[]];
    [self setTitleDictionary:titleOfValue];
    if ([shortTitles count] == [values count] && shortTitles)
        [self setShortTitleDictionary:[NSDictionary dictionaryWithObjects:shortTitles forKeys:values]];
    [self setValues:sorted ? [titleOfValue keysSortedByValueUsingSelector:@selector(caseInsensitiveCompare:)]
                           : values];
}

- (void)loadValuesAndTitlesFromDataSource {
    NSString* valuesMethod = [self propertyForKey:PSValuesDataSourceKey];
    NSString* titlesMethod = [self propertyForKey:PSTitlesDataSourceKey];
    if (valuesMethod == nil || titlesMethod == nil) return;
    NSArray* values = [target performSelector:NSSelectorFromString(valuesMethod) withObject:self];
    NSArray* titles = [target performSelector:NSSelectorFromString(titlesMethod) withObject:self];
    [self setValues:values titles:titles];
}

- (id)performGetter {
    return getter ? [target performSelector:getter withObject:self] : nil;
}

- (void)performSetterWithValue:(id)value {
    if (setter) [target performSelector:setter withObject:value withObject:self];
}

#pragma mark Looks

- (void)setKeyboardType:(NSInteger)type
               autoCaps:(NSInteger)autoCaps
         autoCorrection:(NSInteger)autoCorrection {
    [self setProperty:[NSNumber numberWithInteger:type] forKey:PSKeyboardTypeKey];
    [self setProperty:[NSNumber numberWithInteger:autoCaps] forKey:PSAutoCapsKey];
    [self setProperty:[NSNumber numberWithInteger:autoCorrection] forKey:PSAutoCorrectionKey];
}

- (void)setupIconImageWithBundle:(NSBundle*)bundle {
    NSString* file = [self propertyForKey:PSBundleIconPathKey];
    NSString* path = [[bundle bundlePath] stringByAppendingPathComponent:file ? file : @"icon.png"];
    [self setProperty:[UIImage imageWithContentsOfFile:path] forKey:PSIconImageKey];
}

@end
