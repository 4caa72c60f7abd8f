// A grid of items that a data source supplies and a layout places.
#pragma once

#import "UIKit/NSIndexPath+UIKit.h"
#import "UIKit/UIScrollView.h"

@class UICollectionView;

namespace simulator {
struct CollectionState;
}

@interface UICollectionReusableView : UIView {
  @private
    NSString* _reuseIdentifier;
}

@property (nonatomic, readonly, copy) NSString* reuseIdentifier;
- (void)prepareForReuse;

@end

@interface UICollectionViewCell : UICollectionReusableView {
  @private
    UIView* _cellContentView;
    BOOL _selected;
}

@property (nonatomic, readonly, retain) UIView* contentView;
@property (nonatomic, getter=isSelected) BOOL selected;

@end

@interface UICollectionViewLayout : NSObject {
  @private
    UICollectionView* _collectionView;
}

// Not retained.
@property (nonatomic, readonly, assign) UICollectionView* collectionView;
- (void)invalidateLayout;
- (void)prepareLayout;
- (CGSize)collectionViewContentSize;
// The frame of an item in the collection's content, in points.
- (CGRect)frameForItemAtIndexPath:(NSIndexPath*)path;

@end

@interface UICollectionViewFlowLayout : UICollectionViewLayout {
  @private
    CGSize _itemSize;
    CGFloat _minimumLineSpacing;
    CGFloat _minimumInteritemSpacing;
    UIEdgeInsets _sectionInset;
}

// 50 by 50 points unless set.
@property (nonatomic) CGSize itemSize;
@property (nonatomic) CGFloat minimumLineSpacing;
@property (nonatomic) CGFloat minimumInteritemSpacing;
@property (nonatomic) UIEdgeInsets sectionInset;

@end

@protocol UICollectionViewDataSource <NSObject>
- (NSInteger)collectionView:(UICollectionView*)collection numberOfItemsInSection:(NSInteger)section;
- (UICollectionViewCell*)collectionView:(UICollectionView*)collection
                 cellForItemAtIndexPath:(NSIndexPath*)path;
@optional
- (NSInteger)numberOfSectionsInCollectionView:(UICollectionView*)collection;
@end

@protocol UICollectionViewDelegate <NSObject>
@optional
- (void)collectionView:(UICollectionView*)collection didSelectItemAtIndexPath:(NSIndexPath*)path;
- (void)collectionView:(UICollectionView*)collection didDeselectItemAtIndexPath:(NSIndexPath*)path;
@end

@interface UICollectionView : UIScrollView {
  @private
    simulator::CollectionState* _collectionState;
}

- (instancetype)initWithFrame:(CGRect)frame collectionViewLayout:(UICollectionViewLayout*)layout;

@property (nonatomic, retain) UICollectionViewLayout* collectionViewLayout;
// Not retained.
@property (nonatomic, assign) id<UICollectionViewDataSource> dataSource;
@property (nonatomic) BOOL allowsMultipleSelection;
- (void)registerClass:(Class)cellClass forCellWithReuseIdentifier:(NSString*)identifier;
- (id)dequeueReusableCellWithReuseIdentifier:(NSString*)identifier forIndexPath:(NSIndexPath*)path;
// Asks the data source anew at the next layout.
- (void)reloadData;
- (NSInteger)numberOfSections;
- (NSInteger)numberOfItemsInSection:(NSInteger)section;
// nil for an item that is not on the screen.
- (UICollectionViewCell*)cellForItemAtIndexPath:(NSIndexPath*)path;
- (NSArray*)visibleCells;
- (NSArray*)indexPathsForVisibleItems;
- (NSIndexPath*)indexPathForCell:(UICollectionViewCell*)cell;
- (NSIndexPath*)indexPathForItemAtPoint:(CGPoint)point;
- (NSArray*)indexPathsForSelectedItems;
- (void)selectItemAtIndexPath:(NSIndexPath*)path animated:(BOOL)animated scrollPosition:(NSUInteger)position;
- (void)deselectItemAtIndexPath:(NSIndexPath*)path animated:(BOOL)animated;

@end
