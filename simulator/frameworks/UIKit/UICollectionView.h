// A grid of items that a data source supplies and a layout places.
#pragma once

#import "UIKit/NSIndexPath+UIKit.h"
#import "UIKit/UIViewController.h"
#import "UIKit/internal/ListView.h"

@class UICollectionView;

typedef struct UIEdgeInsets {
    CGFloat top;
    CGFloat left;
    CGFloat bottom;
    CGFloat right;
} UIEdgeInsets;

@interface UICollectionViewCell : ListCell
@end

typedef NS_ENUM(NSInteger, UICollectionViewScrollDirection) {
    UICollectionViewScrollDirectionVertical = 0,
    UICollectionViewScrollDirectionHorizontal = 1,
};

// Places the items in lines, which stand side by side where the collection scrolls horizontally. The one
// layout that there is.
@interface UICollectionViewFlowLayout : NSObject {
  @private
    UICollectionView* _collectionView;
    CGSize _itemSize;
    CGFloat _minimumLineSpacing;
    CGFloat _minimumInteritemSpacing;
    UIEdgeInsets _sectionInset;
    UICollectionViewScrollDirection _scrollDirection;
}

// Set by the collection; not retained: it retains the layout.
@property (nonatomic, assign) UICollectionView* collectionView;
// 50 by 50 points unless set.
@property (nonatomic) CGSize itemSize; // setting it places the items anew
@property (nonatomic) CGFloat minimumLineSpacing;
@property (nonatomic) CGFloat minimumInteritemSpacing;
@property (nonatomic) UIEdgeInsets sectionInset;
@property (nonatomic) UICollectionViewScrollDirection scrollDirection;
- (CGSize)collectionViewContentSize;
// The frame of an item in the collection's content, in points.
- (CGRect)frameForItemAtIndexPath:(NSIndexPath*)path;

@end

@protocol UICollectionViewDataSource <NSObject>
- (NSInteger)collectionView:(UICollectionView*)collection numberOfItemsInSection:(NSInteger)section;
- (UICollectionViewCell*)collectionView:(UICollectionView*)collection
                 cellForItemAtIndexPath:(NSIndexPath*)path;
@end

@protocol UICollectionViewDelegate <NSObject>
@optional
- (void)collectionView:(UICollectionView*)collection didSelectItemAtIndexPath:(NSIndexPath*)path;
@end

// Has one section.
@interface UICollectionView : ListView {
  @private
    UICollectionViewFlowLayout* _collectionViewLayout;
    NSMutableDictionary* _cellClasses; // by reuse identifier
    NSInteger _itemCount;
}

- (instancetype)initWithFrame:(CGRect)frame collectionViewLayout:(UICollectionViewFlowLayout*)layout;

@property (nonatomic, readonly) UICollectionViewFlowLayout* collectionViewLayout;
- (void)registerClass:(Class)cellClass forCellWithReuseIdentifier:(NSString*)identifier;
// Raises for an identifier without a class.
- (id)dequeueReusableCellWithReuseIdentifier:(NSString*)identifier forIndexPath:(NSIndexPath*)path;
- (NSInteger)numberOfItemsInSection:(NSInteger)section;
// nil for an item that is not on the screen.
- (UICollectionViewCell*)cellForItemAtIndexPath:(NSIndexPath*)path;
// nil where there is no item on the screen.
- (NSIndexPath*)indexPathForItemAtPoint:(CGPoint)point;
- (NSIndexPath*)indexPathForCell:(UICollectionViewCell*)cell;

// What a tap on a cell does.
- (void)tapCell:(UICollectionViewCell*)cell;

@end

// A controller whose view holds one collection, of which it is data source and delegate:
// its subclasses answer the two.
@interface UICollectionViewController : UIViewController {
  @private
    UICollectionViewFlowLayout* _layout;
    UICollectionView* _collectionView;
}

- (instancetype)initWithCollectionViewLayout:(UICollectionViewFlowLayout*)layout;

@property (nonatomic, readonly, retain) UICollectionView* collectionView;
@property (nonatomic, readonly) UICollectionViewFlowLayout* collectionViewLayout;

@end
