#pragma once

#import "UIKit/UIKit.h"

@class PSSpecifier;

/// A row of a preference pane: its label and, on the right, its value.
@interface PSTableCell : UITableViewCell {
    PSSpecifier* _specifier;
}
/// The types are those of PSCellType; −1 and nil for what is none.
+ (NSInteger)cellTypeFromString:(NSString*)name;
+ (NSString*)stringFromCellType:(NSInteger)type;
/// The class that shows rows of this type.
+ (Class)cellClassForType:(NSInteger)type;

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString*)reuseIdentifier
                    specifier:(PSSpecifier*)specifier;
/// Shows label and value of the row as they are now.
- (void)refreshCellContentsWithSpecifier:(PSSpecifier*)specifier;
/// Shows the value alone.
- (void)setValue:(id)value;
@property (nonatomic, retain) PSSpecifier* specifier;
@end

/// A row with a switch.
@interface PSSwitchTableCell : PSTableCell {
    UISwitch* _control;
}
@property (nonatomic, readonly) UISwitch* control;
@end
