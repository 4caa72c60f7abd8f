// The tie between a collection and its layout.
#pragma once

#import "UIKit/UICollectionView.h"

@interface UICollectionViewLayout (Collection)
- (void)setCollectionView:(UICollectionView*)view;
@end
