#pragma once

#import "UIKit/UIKit.h"

/// What a row looks like and does, and the numbers by which specifiers name it.
typedef NS_ENUM(NSInteger, PSCellType) {
    PSCellTypeUnknown = -1,
    PSGroupCell = 0,
    PSLinkCell = 1,
    PSLinkListCell = 2,
    PSListItemCell = 3,
    PSTitleValueCell = 4,
    PSSliderCell = 5,
    PSSwitchCell = 6,
    PSStaticTextCell = 7,
    PSEditTextCell = 8,
    PSSegmentCell = 9,
    PSGiantIconCell = 10,
    PSGiantCell = 11,
    PSSecureEditTextCell = 12,
    PSButtonCell = 13,
    PSEditTextViewCell = 14,
    PSSpinnerCell = 15,
};

/// Describes one row, or the group that the rows after it belong to.
@interface PSSpecifier : NSObject {
  @public
    id target; // not retained
    SEL setter;
    SEL getter;
    SEL action;
    SEL cancel;
    NSInteger cellType;
    Class detailControllerClass;
    Class editPaneClass;

  @private
    SEL _buttonAction;
    SEL _confirmationAction;
    SEL _confirmationCancelAction;
    SEL _controllerLoadAction;
    NSString* _name;
    NSArray* _values;
    NSDictionary* _titleDict;
    NSDictionary* _shortTitleDict;
    NSMutableDictionary* _properties;
    id _userInfo;
}
+ (instancetype)preferenceSpecifierNamed:(NSString*)name
                                  target:(id)target
                                     set:(SEL)setter
                                     get:(SEL)getter
                                  detail:(Class)detail
                                    cell:(NSInteger)cellType
                                    edit:(Class)editPane;
- (instancetype)initWithName:(NSString*)name
                      target:(id)target
                         set:(SEL)setter
                         get:(SEL)getter
                      detail:(Class)detail
                        cell:(NSInteger)cellType
                        edit:(Class)editPane;
+ (instancetype)emptyGroupSpecifier;
+ (instancetype)groupSpecifierWithName:(NSString*)name;
+ (instancetype)groupSpecifierWithID:(NSString*)identifier;
+ (instancetype)groupSpecifierWithID:(NSString*)identifier name:(NSString*)name;
+ (instancetype)deleteButtonSpecifierWithName:(NSString*)name target:(id)target action:(SEL)action;

- (id)propertyForKey:(NSString*)key;
/// nil removes the property.
- (void)setProperty:(id)value forKey:(NSString*)key;
- (void)removePropertyForKey:(NSString*)key;
- (id)objectForKeyedSubscript:(NSString*)key;
- (void)setObject:(id)value forKeyedSubscript:(NSString*)key;
- (NSMutableDictionary*)properties;
- (void)setProperties:(NSDictionary*)properties;

/// The property "id".
@property (nonatomic, retain) NSString* identifier;
/// The row's label.
@property (nonatomic, retain) NSString* name;
@property (nonatomic, assign) id target;
@property (nonatomic) NSInteger cellType;
@property (nonatomic) Class detailControllerClass;
@property (nonatomic) Class editPaneClass;
@property (nonatomic) SEL buttonAction;
@property (nonatomic) SEL confirmationAction;
@property (nonatomic) SEL controllerLoadAction;
/// The action of older rows.
@property (nonatomic) SEL legacyAction;
@property (nonatomic, retain) NSArray* values;
/// Value to title.
@property (nonatomic, retain) NSDictionary* titleDictionary;
@property (nonatomic, retain) NSDictionary* shortTitleDictionary;
@property (nonatomic, retain) id userInfo;

/// The arrays have the same count and order.
- (void)setValues:(NSArray*)values titles:(NSArray*)titles;
- (void)setValues:(NSArray*)values titles:(NSArray*)titles shortTitles:(NSArray*)shortTitles;
- (void)setValues:(NSArray*)values
                        titles:(NSArray*)titles
                   shortTitles:(NSArray*)shortTitles
    usingLocalizedTitleSorting:(BOOL)sorted;
/// Asks the target for values and titles, as the row's dictionary names the methods.
- (void)loadValuesAndTitlesFromDataSource;

- (id)performGetter;
- (void)performSetterWithValue:(id)value;
- (void)setKeyboardType:(NSInteger)type autoCaps:(NSInteger)autoCaps autoCorrection:(NSInteger)autoCorrection;
- (void)setupIconImageWithBundle:(NSBundle*)bundle;
@end

/// The rows of a property list: its array "items". Names of classes that are not loaded are dropped, texts
/// are looked up in the bundle's strings table.
NSArray* PSSpecifiersFromPropertyList(NSDictionary* list, id target, NSBundle* bundle,
                                      NSString* stringsTable);
