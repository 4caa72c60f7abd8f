#pragma once

#import "UIKit/UIKit.h"

@class PSSpecifier;

/// A row of a preference pane.
@interface PSTableCell : UITableViewCell {
    PSSpecifier* _specifier;
    id _value;
    BOOL _cellEnabled;
    BOOL _checked;
}
/// −1 for an unknown name.
+ (NSInteger)cellTypeFromString:(NSString*)name;
/// nil for an unknown type.
+ (NSString*)stringFromCellType:(NSInteger)type;
/// The class that shows a row: what the row's dictionary names, else the one for its type.
+ (Class)cellClassForSpecifier:(PSSpecifier*)specifier;

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString*)reuseIdentifier
                    specifier:(PSSpecifier*)specifier;
/// Shows label and value of the row as they are now.
- (void)refreshCellContentsWithSpecifier:(PSSpecifier*)specifier;
@property (nonatomic, retain) PSSpecifier* specifier;
- (NSInteger)type;
@property (nonatomic, retain) id value;
- (id)cellTarget;
- (SEL)cellAction;
@property (nonatomic) BOOL cellEnabled;
@property (nonatomic, getter=isChecked) BOOL checked;
- (UILabel*)titleLabel;
- (UILabel*)valueLabel;
@end

/// A row with a control.
@interface PSControlTableCell : PSTableCell {
    UIControl* _control;
}
@property (nonatomic, readonly) UIControl* control;
/// The control for this kind of row; for subclasses.
- (UIControl*)newControl;
/// What the control says now, as a property-list object; for subclasses.
- (id)controlValue;
/// Hands the control's value to the row.
- (void)controlChanged:(UIControl*)control;
@end

@interface PSSwitchTableCell : PSControlTableCell
@end

@interface PSSubtitleSwitchTableCell : PSSwitchTableCell
@end

/// A control that holds a number or a choice; UIKit's own are not needed by anything else.
@interface PSValueControl : UIControl {
    id _value;
}
@property (nonatomic, retain) id value;
@end

@interface PSSliderTableCell : PSControlTableCell
@end

@interface PSSegmentTableCell : PSControlTableCell
@end

/// A row with a field to type into; the value is stored when editing ends.
@interface PSEditableTableCell : PSTableCell <UITextFieldDelegate> {
    UITextField* _textField;
}
- (UITextField*)textField;
@end

@interface PSTextViewTableCell : PSTableCell
@end

@interface PSSpinnerTableCell : PSTableCell
@end
