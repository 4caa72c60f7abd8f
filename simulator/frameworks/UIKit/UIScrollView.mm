#import "UIKit/UIScrollView.h"

#include <algorithm>

@implementation UIScrollView

@synthesize contentSize = _contentSize, delegate = _scrollDelegate;

- (void)setContentSize:(CGSize)size {
    _contentSize = size;
    [self keepContentInSight];
}

- (void)setFrame:(CGRect)frame {
    [super setFrame:frame];
    [self keepContentInSight];
}

// What was scrolled to may lie beyond the end once the view or its content changes size.
- (void)keepContentInSight {
    const CGRect bounds = [self bounds];
    const auto within = [](CGFloat offset, CGFloat last) {
        return std::min(offset, std::max<CGFloat>(0, last));
    };
    const CGPoint offset = {within(bounds.origin.x, _contentSize.width - bounds.size.width),
                            within(bounds.origin.y, _contentSize.height - bounds.size.height)};
    if (!CGPointEqualToPoint(offset, bounds.origin)) [self setContentOffset:offset];
}

- (CGPoint)contentOffset {
    return [self bounds].origin;
}

- (void)setContentOffset:(CGPoint)offset {
    [self setBounds:{offset, [self bounds].size}];
    [self setNeedsLayout]; // other content comes into sight
}

- (void)setContentOffset:(CGPoint)offset animated:(BOOL)animated {
    [self setContentOffset:offset];
}

@end
