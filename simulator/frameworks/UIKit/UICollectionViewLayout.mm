#import "UIKit/UICollectionView.h"

#import "UIKit/internal/CollectionLayout.h"

#include <algorithm>
#include <cmath>

@implementation UICollectionViewLayout

- (UICollectionView*)collectionView {
    return _collectionView;
}

- (void)setCollectionView:(UICollectionView*)view {
    _collectionView = view;
}

- (void)invalidateLayout {
    [_collectionView setNeedsLayout];
}

- (void)prepareLayout {
}

- (CGSize)collectionViewContentSize {
    return CGSizeZero;
}

- (CGRect)frameForItemAtIndexPath:(NSIndexPath*)path {
    return CGRectZero;
}

@end

@implementation UICollectionViewFlowLayout

- (instancetype)init {
    self = [super init];
    _itemSize = CGSizeMake(50, 50);
    _minimumLineSpacing = 10;
    _minimumInteritemSpacing = 10;
    return self;
}

- (CGSize)itemSize {
    return _itemSize;
}

- (void)setItemSize:(CGSize)size {
    _itemSize = size;
    [self invalidateLayout];
}

- (CGFloat)minimumLineSpacing {
    return _minimumLineSpacing;
}

- (void)setMinimumLineSpacing:(CGFloat)spacing {
    _minimumLineSpacing = spacing;
    [self invalidateLayout];
}

- (CGFloat)minimumInteritemSpacing {
    return _minimumInteritemSpacing;
}

- (void)setMinimumInteritemSpacing:(CGFloat)spacing {
    _minimumInteritemSpacing = spacing;
    [self invalidateLayout];
}

- (UIEdgeInsets)sectionInset {
    return _sectionInset;
}

- (void)setSectionInset:(UIEdgeInsets)inset {
    _sectionInset = inset;
    [self invalidateLayout];
}

// The width that items have within a section.
- (CGFloat)lineWidth {
    return [[self collectionView] bounds].size.width - _sectionInset.left - _sectionInset.right;
}

- (NSInteger)itemsInLine {
    const CGFloat fitting = std::floor(([self lineWidth] + _minimumInteritemSpacing) /
                                       (_itemSize.width + _minimumInteritemSpacing));
    return std::max<NSInteger>(static_cast<NSInteger>(fitting), 1);
}

- (CGFloat)heightOfSection:(NSInteger)section {
    const NSInteger items = [[self collectionView] numberOfItemsInSection:section];
    const NSInteger perLine = [self itemsInLine];
    const NSInteger lines = (items + perLine - 1) / perLine;
    const CGFloat spacing = static_cast<CGFloat>(std::max<NSInteger>(lines - 1, 0)) * _minimumLineSpacing;
    return _sectionInset.top + static_cast<CGFloat>(lines) * _itemSize.height + spacing +
           _sectionInset.bottom;
}

- (CGFloat)topOfSection:(NSInteger)section {
    CGFloat top = 0;
    for (NSInteger each = 0; each < section; ++each)
        top += [self heightOfSection:each];
    return top;
}

- (CGSize)collectionViewContentSize {
    return {[[self collectionView] bounds].size.width,
            [self topOfSection:[[self collectionView] numberOfSections]]};
}

- (CGRect)frameForItemAtIndexPath:(NSIndexPath*)path {
    const NSInteger perLine = [self itemsInLine];
    const auto column = static_cast<CGFloat>([path item] % perLine);
    const NSInteger fullLines = [path item] / perLine;
    const auto line = static_cast<CGFloat>(fullLines);
    // The room that a full line leaves goes between its items.
    const CGFloat spare = [self lineWidth] - static_cast<CGFloat>(perLine) * _itemSize.width;
    const CGFloat spacing = perLine > 1 ? spare / static_cast<CGFloat>(perLine - 1) : 0;
    return CGRectMake(_sectionInset.left + column * (_itemSize.width + spacing),
                      [self topOfSection:[path section]] + _sectionInset.top +
                          line * (_itemSize.height + _minimumLineSpacing),
                      _itemSize.width, _itemSize.height);
}

@end
