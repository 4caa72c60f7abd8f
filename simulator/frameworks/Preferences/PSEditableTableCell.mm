#import "Preferences/PSKeys.h"
#import "Preferences/PSSpecifier.h"
#import "Preferences/PSTableCell.h"

@implementation PSEditableTableCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString*)reuseIdentifier
                    specifier:(PSSpecifier*)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier];
    if (!self) return nil;
    _textField = [[UITextField alloc] initWithFrame:CGRectMake(0, 0, 180, 31)];
    [_textField setPlaceholder:[specifier propertyForKey:PSPlaceholderKey]];
    [_textField setSecureTextEntry:[specifier cellType] == PSSecureEditTextCell ? YES : NO];
    [_textField setDelegate:self];
    [self setAccessoryView:_textField];
    return self;
}

- (void)dealloc {
    [_textField setDelegate:nil];
    [_textField release];
    [super dealloc];
}

- (UITextField*)textField {
    return _textField;
}

- (void)setValue:(id)value {
    [value retain];
    [_value release];
    _value = value;
    [_textField setText:[value description]];
}

- (void)textFieldDidEndEditing:(UITextField*)field {
    [[self specifier] performSetterWithValue:[field text]];
}

@end
