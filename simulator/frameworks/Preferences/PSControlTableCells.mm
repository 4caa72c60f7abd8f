#import "Preferences/PSKeys.h"
#import "Preferences/PSSpecifier.h"
#import "Preferences/PSTableCell.h"

#include <algorithm>

@implementation PSControlTableCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString*)reuseIdentifier
                    specifier:(PSSpecifier*)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier];
    if (!self) return nil;
    _control = [self newControl];
    [_control addTarget:self action:@selector(controlChanged:) forControlEvents:UIControlEventValueChanged];
    [self setAccessoryView:_control];
    return self;
}

- (void)dealloc {
    [_control release];
    [super dealloc];
}

- (UIControl*)control {
    return _control;
}

- (UIControl*)newControl {
    return [[PSValueControl alloc] initWithFrame:CGRectMake(0, 0, 100, 31)];
}

- (id)controlValue {
    return [static_cast<PSValueControl*>(_control) value];
}

- (void)setValue:(id)value {
    [super setValue:value];
    [static_cast<PSValueControl*>(_control) setValue:value];
}

- (void)setCellEnabled:(BOOL)enabled {
    [super setCellEnabled:enabled];
    [_control setEnabled:enabled];
}

- (void)controlChanged:(UIControl*)control {
    [[self specifier] performSetterWithValue:[self controlValue]];
}

@end

@implementation PSValueControl

@synthesize value = _value;

- (void)dealloc {
    [_value release];
    [super dealloc];
}

@end

@implementation PSSwitchTableCell

- (UIControl*)newControl {
    return [[UISwitch alloc] initWithFrame:CGRectMake(0, 0, 51, 31)];
}

- (id)controlValue {
    return [NSNumber numberWithBool:[static_cast<UISwitch*>(_control) isOn]];
}

- (void)setValue:(id)value {
    [value retain];
    [_value release];
    _value = value;
    [static_cast<UISwitch*>(_control) setOn:[value boolValue] ? YES : NO animated:NO];
}

@end

@implementation PSSubtitleSwitchTableCell
@end

@implementation PSSliderTableCell

- (id)controlValue {
    double value = [[super controlValue] doubleValue];
    NSNumber* least = [[self specifier] propertyForKey:PSControlMinimumKey];
    NSNumber* most = [[self specifier] propertyForKey:PSControlMaximumKey];
    if (least) value = std::max(value, [least doubleValue]);
    if (most) value = std::min(value, [most doubleValue]);
    return [NSNumber numberWithDouble:value];
}

@end

@implementation PSSegmentTableCell
@end
