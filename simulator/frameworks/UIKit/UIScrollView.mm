#import "UIKit/UIScrollView.h"

#import "UIKit/internal/MainThread.h"

using simulator::mainThreadOnly;

@implementation UIScrollView

- (CGSize)contentSize {
    mainThreadOnly(self, _cmd);
    return _contentSize;
}

- (void)setContentSize:(CGSize)size {
    mainThreadOnly(self, _cmd);
    _contentSize = size;
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
