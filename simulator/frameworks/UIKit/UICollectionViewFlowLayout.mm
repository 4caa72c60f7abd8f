#import "UIKit/UICollectionView.h"

#include <algorithm>
#include <cmath>

@implementation UICollectionViewFlowLayout

@synthesize collectionView = _collectionView, itemSize = _itemSize, minimumLineSpacing = _minimumLineSpacing,
            minimumInteritemSpacing = _minimumInteritemSpacing, sectionInset = _sectionInset,
            scrollDirection = _scrollDirection;

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

- (bool)isSideways {
    return _scrollDirection == UICollectionViewScrollDirectionHorizontal;
}

// The room that the items of a line have.
- (CGFloat)lineLength {
    const CGSize size = [_collectionView bounds].size;
    return [self isSideways] ? size.height - _sectionInset.top - _sectionInset.bottom
                             : size.width - _sectionInset.left - _sectionInset.right;
}

- (CGFloat)lengthInLine {
    return [self isSideways] ? _itemSize.height : _itemSize.width;
}

- (NSInteger)itemsInLine {
    const CGFloat fitting = std::floor(([self lineLength] + _minimumInteritemSpacing) /
                                       ([self lengthInLine] + _minimumInteritemSpacing));
    return std::max<NSInteger>(static_cast<NSInteger>(fitting), 1);
}

- (CGSize)collectionViewContentSize {
    const NSInteger items = [_collectionView numberOfItemsInSection:0];
    const NSInteger perLine = [self itemsInLine];
    const NSInteger fullOrBegunLines = (items + perLine - 1) / perLine;
    const auto lines = static_cast<CGFloat>(fullOrBegunLines);
    const CGFloat spacing = std::max<CGFloat>(lines - 1, 0) * _minimumLineSpacing;
    const CGSize size = [_collectionView bounds].size;
    if ([self isSideways])
        return {_sectionInset.left + lines * _itemSize.width + spacing + _sectionInset.right, size.height};
    return {size.width, _sectionInset.top + lines * _itemSize.height + spacing + _sectionInset.bottom};
}

- (CGRect)frameForItemAtIndexPath:(NSIndexPath*)path {
    const NSInteger perLine = [self itemsInLine];
    const auto place = static_cast<CGFloat>([path item] % perLine);
    const NSInteger fullLines = [path item] / perLine;
    const auto line = static_cast<CGFloat>(fullLines);
    // The room that a full line leaves goes between its items.
    const CGFloat spare = [self lineLength] - static_cast<CGFloat>(perLine) * [self lengthInLine];
    const CGFloat spacing = perLine > 1 ? spare / static_cast<CGFloat>(perLine - 1) : 0;
    const CGFloat column = [self isSideways] ? line : place;
    const CGFloat row = [self isSideways] ? place : line;
    const CGFloat columnSpacing = [self isSideways] ? _minimumLineSpacing : spacing;
    const CGFloat rowSpacing = [self isSideways] ? spacing : _minimumLineSpacing;
    return CGRectMake(_sectionInset.left + column * (_itemSize.width + columnSpacing),
                      _sectionInset.top + row * (_itemSize.height + rowSpacing), _itemSize.width,
                      _itemSize.height);
}

@end
