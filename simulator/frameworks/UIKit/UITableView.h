// A list of rows that a data source supplies.
#pragma once

#import "UIKit/NSIndexPath+UIKit.h"
#import "UIKit/UIScrollView.h"

@class UILabel, UIImageView, UITableView;

namespace simulator {
struct TableState;
struct TableCellState;
} // namespace simulator

typedef NS_ENUM(NSInteger, UITableViewStyle) {
    UITableViewStylePlain = 0,
    UITableViewStyleGrouped = 1,
};

typedef NS_ENUM(NSInteger, UITableViewCellStyle) {
    UITableViewCellStyleDefault = 0,
    UITableViewCellStyleValue1 = 1,
    UITableViewCellStyleValue2 = 2,
    UITableViewCellStyleSubtitle = 3,
};

typedef NS_ENUM(NSInteger, UITableViewCellAccessoryType) {
    UITableViewCellAccessoryNone = 0,
    UITableViewCellAccessoryDisclosureIndicator = 1,
    UITableViewCellAccessoryCheckmark = 3,
};

@interface UITableViewCell : UIView {
  @private
    simulator::TableCellState* _cellState;
}

- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString*)reuseIdentifier;

@property (nonatomic, readonly, copy) NSString* reuseIdentifier;
@property (nonatomic, readonly, retain) UIView* contentView;
@property (nonatomic, readonly, retain) UILabel* textLabel;
// nil in the default style.
@property (nonatomic, readonly, retain) UILabel* detailTextLabel;
@property (nonatomic, readonly, retain) UIImageView* imageView;
@property (nonatomic) UITableViewCellAccessoryType accessoryType;
@property (nonatomic, retain) UIView* accessoryView;
@property (nonatomic, getter=isSelected) BOOL selected;
- (void)prepareForReuse;

@end

@protocol UITableViewDataSource <NSObject>
- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section;
- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path;
@optional
- (NSInteger)numberOfSectionsInTableView:(UITableView*)table;
// Texts above and below a section; nil or empty for none.
- (NSString*)tableView:(UITableView*)table titleForHeaderInSection:(NSInteger)section;
- (NSString*)tableView:(UITableView*)table titleForFooterInSection:(NSInteger)section;
@end

@protocol UITableViewDelegate <NSObject>
@optional
- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path;
- (CGFloat)tableView:(UITableView*)table heightForRowAtIndexPath:(NSIndexPath*)path;
@end

@interface UITableView : UIScrollView {
  @private
    simulator::TableState* _tableState;
}

- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style;

@property (nonatomic, readonly) UITableViewStyle style;
// Not retained.
@property (nonatomic, assign) id<UITableViewDataSource> dataSource;
@property (nonatomic) CGFloat rowHeight;
- (void)reloadData;
- (NSInteger)numberOfSections;
- (NSInteger)numberOfRowsInSection:(NSInteger)section;
- (void)registerClass:(Class)cellClass forCellReuseIdentifier:(NSString*)identifier;
- (id)dequeueReusableCellWithIdentifier:(NSString*)identifier;
- (id)dequeueReusableCellWithIdentifier:(NSString*)identifier forIndexPath:(NSIndexPath*)path;
// nil for a row that is not on the screen.
- (UITableViewCell*)cellForRowAtIndexPath:(NSIndexPath*)path;
- (NSArray*)visibleCells;
- (NSIndexPath*)indexPathForCell:(UITableViewCell*)cell;
- (NSIndexPath*)indexPathForRowAtPoint:(CGPoint)point;
- (void)deselectRowAtIndexPath:(NSIndexPath*)path animated:(BOOL)animated;

@end
