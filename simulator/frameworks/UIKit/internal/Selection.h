// What a tap on a cell does.
#pragma once

#import "UIKit/UICollectionView.h"
#import "UIKit/UITableView.h"

@interface UITableView (Selection)
- (void)tapCell:(UITableViewCell*)cell;
@end

@interface UICollectionView (Selection)
- (void)tapCell:(UICollectionViewCell*)cell;
@end
