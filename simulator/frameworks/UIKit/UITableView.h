// A list of rows that a data source supplies.
#pragma once

#import "UIKit/NSIndexPath+UIKit.h"
#import "UIKit/internal/ListView.h"

#include <vector>

@class UIImageView, UILabel, UITableView;

typedef NS_ENUM(NSInteger, UITableViewStyle) {
    UITableViewStylePlain = 0,
    UITableViewStyleGrouped = 1,
};

typedef NS_ENUM(NSInteger, UITableViewCellStyle) {
    UITableViewCellStyleDefault = 0,
    UITableViewCellStyleValue1 = 1,
    UITableViewCellStyleSubtitle = 3,
};

typedef NS_ENUM(NSInteger, UITableViewCellAccessoryType) {
    UITableViewCellAccessoryNone = 0,
    UITableViewCellAccessoryDisclosureIndicator = 1,
    UITableViewCellAccessoryCheckmark = 3,
};

@interface UITableViewCell : ListCell {
  @private
    UILabel* _textLabel;
    UIImageView* _imageView;
    UILabel* _detailTextLabel;
    UIView* _accessoryView;
    UITableViewCellStyle _cellStyle;
    UITableViewCellAccessoryType _accessoryType;
}

- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString*)reuseIdentifier;

@property (nonatomic, readonly, retain) UILabel* textLabel;
@property (nonatomic, readonly, retain) UIImageView* imageView;
// nil in the default style.
@property (nonatomic, readonly, retain) UILabel* detailTextLabel;
@property (nonatomic) UITableViewCellAccessoryType accessoryType;
@property (nonatomic, retain) UIView* accessoryView;

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
@end

namespace simulator {

struct TableRow {
    NSInteger section;
    NSInteger row;
    CGFloat top;
};

} // namespace simulator

@interface UITableView : ListView {
  @private
    std::vector<simulator::TableRow> _rows;
    NSMutableArray* _sectionTexts;
    UITableViewStyle _style;
}

- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style;
- (id)dequeueReusableCellWithIdentifier:(NSString*)identifier;

// What a tap on a cell does.
- (void)tapCell:(UITableViewCell*)cell;

@end
