#pragma once

#import <Foundation/Foundation.h>

/// What a row looks like and does, and the numbers by which specifiers name it.
typedef NS_ENUM(NSInteger, PSCellType) {
    PSGroupCell = 0,
    PSLinkCell = 1,
    PSLinkListCell = 2,
    PSListItemCell = 3,
    PSTitleValueCell = 4,
    PSSwitchCell = 6,
    PSButtonCell = 13,
};

// The keys of a row's dictionary.
static NSString* const PSTableCellClassKey = @"cell";
static NSString* const PSTitleKey = @"label";
static NSString* const PSIDKey = @"id";
static NSString* const PSKeyNameKey = @"key";
static NSString* const PSValueKey = @"value";
static NSString* const PSActionKey = @"action";
static NSString* const PSDetailControllerClassKey = @"detail";
static NSString* const PSBundlePathKey = @"bundle";
static NSString* const PSBundleIsControllerKey = @"isController";
static NSString* const PSLazilyLoadedBundleKey = @"lazy-bundle";
static NSString* const PSIconImageKey = @"iconImage";
static NSString* const PSFooterTextGroupKey = @"footerText";
static NSString* const PSValidValuesKey = @"validValues";
static NSString* const PSValidTitlesKey = @"validTitles";

/// Describes one row, or the group that the rows after it belong to.
@interface PSSpecifier : NSObject {
  @private
    id _target;
    SEL _setter;
    SEL _getter;
    SEL _legacyAction;
    NSInteger _cellType;
    Class _detailControllerClass;
    NSString* _name;
    NSArray* _values;
    NSDictionary* _titleDictionary;
    NSMutableDictionary* _properties;
}
+ (instancetype)preferenceSpecifierNamed:(NSString*)name
                                  target:(id)target
                                     set:(SEL)setter
                                     get:(SEL)getter
                                  detail:(Class)detail
                                    cell:(NSInteger)cellType
                                    edit:(Class)editPane;
/// A row as its dictionary in a property list describes it. A class that is not loaded counts as none.
+ (instancetype)specifierWithDictionary:(NSDictionary*)row target:(id)target;
+ (instancetype)emptyGroupSpecifier;

- (id)propertyForKey:(NSString*)key;
/// Raises for nil.
- (void)setProperty:(id)value forKey:(NSString*)key;

/// The property "id".
@property (nonatomic, retain) NSString* identifier;
/// The row's label.
@property (nonatomic, retain) NSString* name;
@property (nonatomic, readonly) NSInteger cellType;
/// The pane that the row opens.
@property (nonatomic) Class detailControllerClass;
/// What a tap on a button asks the target to do.
@property (nonatomic) SEL legacyAction;
@property (nonatomic, readonly) NSArray* values;
/// Value to title.
@property (nonatomic, readonly) NSDictionary* titleDictionary;

/// The arrays have the same count and order.
- (void)setValues:(NSArray*)values titles:(NSArray*)titles;

/// All three ask the target, which is not retained.
- (id)performGetter;
- (void)performSetterWithValue:(id)value;
- (void)performLegacyAction;
@end
