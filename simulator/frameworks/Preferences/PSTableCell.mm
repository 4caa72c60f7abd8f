#import "Preferences/PSTableCell.h"

#import "Preferences/PSSpecifier.h"

namespace {

struct CellType {
    PSCellType number;
    NSString* name;
    Class (*cellClass)();
    BOOL opensPane;
};

Class plain() { return [PSTableCell class]; }

const CellType cellTypes[] = {
    {PSGroupCell, @"PSGroupCell", plain, NO},
    {PSLinkCell, @"PSLinkCell", plain, YES},
    {PSLinkListCell, @"PSLinkListCell", plain, YES},
    {PSListItemCell, @"PSListItemCell", plain, NO},
    {PSTitleValueCell, @"PSTitleValueCell", plain, NO},
    {PSSwitchCell, @"PSSwitchCell", [] { return [PSSwitchTableCell class]; }, NO},
    {PSButtonCell, @"PSButtonCell", plain, NO},
};

const CellType* cellTypeNumbered(NSInteger number) {
    for (const CellType& type : cellTypes)
        if (type.number == number) return &type;
    return nullptr;
}

} // namespace

@implementation PSTableCell

@synthesize specifier = _specifier;

+ (NSInteger)cellTypeFromString:(NSString*)name {
    for (const CellType& type : cellTypes)
        if ([type.name isEqualToString:name]) return type.number;
    return -1;
}

+ (NSString*)stringFromCellType:(NSInteger)number {
    const CellType* type = cellTypeNumbered(number);
    return type != nullptr ? type->name : nil;
}

+ (Class)cellClassForType:(NSInteger)number {
    const CellType* type = cellTypeNumbered(number);
    return type != nullptr ? type->cellClass() : plain();
}

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString*)reuseIdentifier
                    specifier:(PSSpecifier*)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier];
    if (self == nil) return nil;
    _specifier = [specifier retain];
    const CellType* type = cellTypeNumbered([specifier cellType]);
    if (type != nullptr && type->opensPane)
        [self setAccessoryType:UITableViewCellAccessoryDisclosureIndicator];
    return self;
}

- (void)dealloc {
    [_specifier release];
    [super dealloc];
}

- (void)refreshCellContentsWithSpecifier:(PSSpecifier*)specifier {
    [self setSpecifier:specifier];
    [[self textLabel] setText:[specifier name]];
    if (UIImage* icon = [specifier propertyForKey:PSIconImageKey]) [[self imageView] setImage:icon];
    [self setValue:[specifier performGetter]];
}

- (void)setValue:(id)value {
    NSString* title = value != nil ? [[_specifier titleDictionary] objectForKey:value] : nil;
    [[self detailTextLabel] setText:title != nil ? title : [value description]];
}

@end

@implementation PSSwitchTableCell

@synthesize control = _control;

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString*)reuseIdentifier
                    specifier:(PSSpecifier*)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier];
    if (self == nil) return nil;
    _control = [[UISwitch alloc] initWithFrame:CGRectMake(0, 0, 51, 31)];
    [_control addTarget:self action:@selector(controlChanged:) forControlEvents:UIControlEventValueChanged];
    [self setAccessoryView:_control];
    return self;
}

- (void)dealloc {
    [_control release];
    [super dealloc];
}

- (void)setValue:(id)value {
    [_control setOn:[value boolValue] ? YES : NO animated:NO];
}

- (void)controlChanged:(UISwitch*)control {
    [_specifier performSetterWithValue:[NSNumber numberWithBool:[control isOn]]];
}

@end
