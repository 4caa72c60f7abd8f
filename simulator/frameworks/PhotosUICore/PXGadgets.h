// The parts that some screens of Photos are put together of.
#pragma once

#import "Photos/Photos.h"
#import "UIKit/UIKit.h"

/// A part of a screen, or a screen of such parts.
@interface PXGadgetViewController : UIViewController
@end

/// A row of items that scrolls to the side. Subclasses say which.
@interface PXHorizontalCollectionGadget
    : PXGadgetViewController <UICollectionViewDataSource, UICollectionViewDelegate> {
    UICollectionView* _collectionView;
}
@property (nonatomic, readonly) UICollectionView* collectionView;
- (CGSize)itemSize;
- (Class)cellClass;
- (void)configureCell:(UICollectionViewCell*)cell atIndexPath:(NSIndexPath*)path;
/// What a hard press on the item shows first; nil for nothing.
- (UIViewController*)previewViewControllerForItemAtIndexPath:(NSIndexPath*)path;
/// The same for a place in a view, with what stays sharp meanwhile, in that view; nil where there is no item.
- (UIViewController*)previewViewControllerAtLocation:(CGPoint)location
                                      fromSourceView:(UIView*)sourceView
                                       outSourceRect:(CGRect*)sourceRect;
@end

/// Goes where a gadget is told to go.
@protocol PXGadgetNavigation <NSObject>
/// The completion may be nil.
- (void)navigateToCollection:(PHCollection*)collection
                    animated:(BOOL)animated
                  completion:(void (^)(BOOL success))completion;
@end

/// Stock albums in a table, with the number of their photos.
@interface PXNavigationListGadget : NSObject <UITableViewDataSource, UITableViewDelegate> {
    NSArray* _collections;
    NSArray* _details;
    UITableView* _table;
    id<PXGadgetNavigation> _delegate;
}
@property (nonatomic, readonly) UITableView* table;
@property (nonatomic, readonly) NSArray* collections;
/// Not retained.
@property (nonatomic, assign) id<PXGadgetNavigation> delegate;
/// The details, texts, stand at the ends of the rows.
- (void)showCollections:(NSArray*)collections details:(NSArray*)details;
- (CGFloat)height;
- (void)navigateToCollection:(PHCollection*)collection
                    animated:(BOOL)animated
                  completion:(void (^)(BOOL success))completion;
@end
