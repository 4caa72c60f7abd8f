#import "Preferences/PSTableCell.h"

#import "Preferences/PSKeys.h"
#import "Preferences/PSSpecifier.h"

namespace {

struct Type {
    const char* name;
    NSInteger number;
    const char* cellClass;
};

constexpr Type types[] = {
    {"PSGroupCell", PSGroupCell, "PSTableCell"},
    {"PSLinkCell", PSLinkCell, "PSTableCell"},
    {"PSLinkListCell", PSLinkListCell, "PSTableCell"},
    {"PSListItemCell", PSListItemCell, "PSTableCell"},
    {"PSTitleValueCell", PSTitleValueCell, "PSTableCell"},
    {"PSSliderCell", PSSliderCell, "PSSliderTableCell"},
    {"PSSwitchCell", PSSwitchCell, "PSSwitchTableCell"},
    {"PSStaticTextCell", PSStaticTextCell, "PSTableCell"},
    {"PSEditTextCell", PSEditTextCell, "PSEditableTableCell"},
    {"PSSegmentCell", PSSegmentCell, "PSSegmentTableCell"},
    {"PSGiantIconCell", PSGiantIconCell, "PSTableCell"},
    {"PSGiantCell", PSGiantCell, "PSTableCell"},
    {"PSSecureEditTextCell", PSSecureEditTextCell, "PSEditableTableCell"},
    {"PSButtonCell", PSButtonCell, "PSTableCell"},
    {"PSEditTextViewCell", PSEditTextViewCell, "PSTextViewTableCell"},
    {"PSSpinnerCell", PSSpinnerCell, "PSSpinnerTableCell"},
};

const Type* typeNumbered(NSInteger number) {
    for (const Type& type : types)
        if (type.number == number) return &type;
    return nullptr;
}

BOOL opensPane(NSInteger type) {
    return type == PSLinkCell || type == PSLinkListCell || type == PSGiantIconCell || type == PSGiantCell;
}

} // namespace

@implementation PSTableCell

@synthesize specifier = _specifier, value = _value, cellEnabled = _cellEnabled, checked = _checked;

+ (NSInteger)cellTypeFromString:(NSString*)name {
    for (const Type& type : types)
        if (name && strcmp([name UTF8String], type.name) == 0) return type.number;
    return PSCellTypeUnknown;
}

+ (NSString*)stringFromCellType:(NSInteger)number {
    const Type* type = typeNumbered(number);
    return type ? [NSString stringWithUTF8String:type->name] : nil;
}

+ (Class)cellClassForSpecifier:(PSSpecifier*)specifier {
    if (Class named = [specifier propertyForKey:PSCellClassKey]) return named;
    const Type* type = typeNumbered([specifier cellType]);
    return type ? NSClassFromString([NSString stringWithUTF8String:type->cellClass]) : [PSTableCell class];
}

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString*)reuseIdentifier
                    specifier:(PSSpecifier*)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier];
    if (!self) return nil;
    _specifier = [specifier retain];
    _cellEnabled = YES;
    if (opensPane([specifier cellType])) [self setAccessoryType:UITableViewCellAccessoryDisclosureIndicator];
    return self;
}

- (void)dealloc {
    [_specifier release];
    [_value release];
    [super dealloc];
}

- (void)refreshCellContentsWithSpecifier:(PSSpecifier*)specifier {
    [self setSpecifier:specifier];
    [[self titleLabel] setText:[specifier name]];
    NSNumber* enabled = [specifier propertyForKey:PSEnabledKey];
    [self setCellEnabled:enabled == nil || [enabled boolValue] ? YES : NO];
    [self setValue:[specifier performGetter]];
}

- (void)setValue:(id)value {
    [value retain];
    [_value release];
    _value = value;
    NSString* title = value ? [[_specifier titleDictionary] objectForKey:value] : nil;
    [[self valueLabel] setText:title ? title : [value description]];
}

- (NSInteger)type {
    return [_specifier cellType];
}

- (id)cellTarget {
    return [_specifier target];
}

- (SEL)cellAction {
    return [_specifier buttonAction] ? [_specifier buttonAction] : [_specifier legacyAction];
}

- (void)setCellEnabled:(BOOL)enabled {
    _cellEnabled = enabled;
    [self setUserInteractionEnabled:enabled];
}

- (void)setChecked:(BOOL)checked {
    _checked = checked;
    [self setAccessoryType:checked ? UITableViewCellAccessoryCheckmark : UITableViewCellAccessoryNone];
}

- (UILabel*)titleLabel {
    return [self textLabel];
}

- (UILabel*)valueLabel {
    return [self detailTextLabel];
}

@end

@implementation PSTextViewTableCell
@end

@implementation PSSpinnerTableCell
@end
