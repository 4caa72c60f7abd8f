// A view whose content may be larger than itself.
#pragma once

#import "UIKit/UIView.h"

@interface UIScrollView : UIView {
  @private
    CGSize _contentSize;
    id _scrollDelegate;
}

@property (nonatomic) CGSize contentSize;
// The origin of the bounds. Comes back to the end of the content when view or content become too short for
// it.
@property (nonatomic) CGPoint contentOffset;
// Not retained.
@property (nonatomic, assign) id delegate;
- (void)setContentOffset:(CGPoint)offset animated:(BOOL)animated;

@end
