// What tables and collections have in common: a data source makes cells for what is in sight, and cells that
// go out of sight are used again.
#pragma once

#import "UIKit/UIScrollView.h"
#import "UIKit/internal/Ownership.h"

#include <map>

@interface ListCell : UIView {
  @private
    NSString* _reuseIdentifier;
    UIView* _cellContentView;
}

@property (nonatomic, copy) NSString* reuseIdentifier;
// As large as the cell.
@property (nonatomic, readonly, retain) UIView* contentView;

@end

@interface ListView : UIScrollView {
  @private
    id _dataSource;
    std::map<NSInteger, simulator::Retained<ListCell*>> _shown; // by place in the list
    NSMutableArray* _waiting;                                   // for reuse
    BOOL _isLoaded;
}

// Not retained.
@property (nonatomic, assign) id dataSource;
// Asks the data source anew at the next layout.
- (void)reloadData;
// Asks it now, if that is still to be done.
- (void)loadIfNeeded;

// The cells on the screen in the order of their places.
- (NSArray*)visibleCells;
// nil for what is not on the screen.
- (ListCell*)cellAt:(NSInteger)place;
// NSNotFound for a cell that is not on the screen.
- (NSInteger)placeOf:(ListCell*)cell;
// A cell that waits for reuse; nil when there is none.
- (ListCell*)dequeue:(NSString*)identifier;

@end

// Where they differ.
@interface ListView (Kind)
// Asks the data source what there is.
- (void)load;
// The frames of what is in sight, by place.
- (std::map<NSInteger, CGRect>)framesIn:(CGRect)visible;
// Has the data source make a cell.
- (ListCell*)cellMadeFor:(NSInteger)place;
@end
