#import "UIKit/UIScrollView.h"

#import "UIKit/internal/MainThread.h"

#include <algorithm>

using simulator::mainThreadOnly;

@implementation UIScrollView

- (CGSize)contentSize {
    mainThreadOnly(self, _cmd);
    return _contentSize;
}

- (void)setContentSize:(CGSize)size {
    mainThreadOnly(self, _cmd);
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
    const auto within = [](CGFloat offset, CGFloat first, CGFloat last) {
        return std::min(offset, std::max(first, last));
    };
    const CGPoint offset = {within(bounds.origin.x, -_contentInset.left,
                                   _contentSize.width - bounds.size.width + _contentInset.right),
                            within(bounds.origin.y, -_contentInset.top,
                                   _contentSize.height - bounds.size.height + _contentInset.bottom)};
    if (!CGPointEqualToPoint(offset, bounds.origin)) [self setContentOffset:offset];
}

- (CGPoint)contentOffset {
    return [self bounds].origin;
}

- (void)setContentOffset:(CGPoint)offset {
    [self setContentOffset:offset animated:NO];
}

- (void)setContentOffset:(CGPoint)offset animated:(BOOL)animated {
    [self setBounds:{offset, [self bounds].size}];
    [self setNeedsLayout]; // other content comes into sight
}

- (UIEdgeInsets)contentInset {
    mainThreadOnly(self, _cmd);
    return _contentInset;
}

- (void)setContentInset:(UIEdgeInsets)inset {
    mainThreadOnly(self, _cmd);
    _contentInset = inset;
}

- (id)delegate {
    mainThreadOnly(self, _cmd);
    return _scrollDelegate;
}

- (void)setDelegate:(id)delegate {
    mainThreadOnly(self, _cmd);
    _scrollDelegate = delegate;
}

@end
