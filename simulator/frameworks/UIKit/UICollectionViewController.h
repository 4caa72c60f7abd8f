// A controller whose view holds one collection, of which it is data source and delegate.
#pragma once

#import "UIKit/UICollectionView.h"
#import "UIKit/UIViewController.h"

@interface UICollectionViewController
    : UIViewController <UICollectionViewDataSource, UICollectionViewDelegate> {
  @private
    UICollectionViewLayout* _layout;
    UICollectionView* _collectionView;
}

- (instancetype)initWithCollectionViewLayout:(UICollectionViewLayout*)layout;

@property (nonatomic, retain) UICollectionView* collectionView;
@property (nonatomic, readonly) UICollectionViewLayout* collectionViewLayout;

@end
