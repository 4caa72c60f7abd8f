#import "UIKit/UICollectionView.h"

#include <algorithm>
#include <cmath>

@implementation UICollectionViewFlowLayout

@synthesize collectionView = _collectionView, itemSize = _itemSize, minimumLineSpacing = _minimumLineSpacing,
            minimumInteritemSpacing = _minimumInteritemSpacing, sectionInset = _sectionInset;

- (instancetype)init {
    self = [super init];
    _itemSize = CGSizeMake(50, 50);
    _minimumLineSpacing = 10;
    _minimumInteritemSpacing = 10;
    return self;
}

- (void)setItemSize:(CGSize)size {
    _itemSize = size;
    [_collectionView setNeedsLayout];
}

// The width that items have.
- (CGFloat)lineWidth {
    return [_collectionView bounds].size.width - _sectionInset.left - _sectionInset.right;
}

- (NSInteger)itemsInLine {
    const CGFloat fitting = std::floor(([self lineWidth] + _minimumInteritemSpacing) /
                                       (_itemSize.width + _minimumInteritemSpacing));
    return std::max<NSInteger>(static_cast<NSInteger>(fitting), 1);
}

- (CGSize)collectionViewContentSize {
    const NSInteger items = [_collectionView numberOfItemsInSection:0];
    const NSInteger perLine = [self itemsInLine];
    const NSInteger fullOrBegunLines = (items + perLine - 1) / perLine;
    const auto lines = static_cast<CGFloat>(fullOrBegunLines);
    const CGFloat spacing = std::max<CGFloat>(lines - 1, 0) * _minimumLineSpacing;
    return {[_collectionView bounds].size.width,
            _sectionInset.top + lines * _itemSize.height + spacing + _sectionInset.bottom};
}

- (CGRect)frameForItemAtIndexPath:(NSIndexPath*)path {
    const NSInteger perLine = [self itemsInLine];
    const auto column = static_cast<CGFloat>([path item] % perLine);
    const NSInteger fullLines = [path item] / perLine;
    // The room that a full line leaves goes between its items.
    const CGFloat spare = [self lineWidth] - static_cast<CGFloat>(perLine) * _itemSize.width;
    const CGFloat spacing = perLine > 1 ? spare / static_cast<CGFloat>(perLine - 1) : 0;
    return CGRectMake(_sectionInset.left + column * (_itemSize.width + spacing),
                      _sectionInset.top +
                          static_cast<CGFloat>(fullLines) * (_itemSize.height + _minimumLineSpacing),
                      _itemSize.width, _itemSize.height);
}

@end
