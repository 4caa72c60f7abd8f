// How a collection names its cells.
#pragma once

#import "UIKit/UICollectionView.h"

@interface UICollectionReusableView (Reuse)
- (void)setReuseIdentifier:(NSString*)identifier;
@end
