#pragma once

#import "Photos/Photos.h"
#import "PhotosUI/PUAlbumListCell.h"

@class PUAlbumListViewController;

/// Hears that the user has chosen an album and the photos are in it, or could not be put there, or that the
/// user has cancelled. Main thread.
@protocol PUAlbumPickingDelegate <NSObject>
- (void)albumListDidFinishPicking:(PUAlbumListViewController*)list;
@end

/// What is on its way to the album that the user chooses.
@interface PUSessionInfo : NSObject {
    NSOrderedSet* _transferredAssets;
}
/// PHAsset objects.
@property (nonatomic, copy) NSOrderedSet* transferredAssets;
@end

/// The grid of the library's albums: opens them, edits them, or lets the user choose one to put photos into.
@interface PUAlbumListViewController
    : UIViewController <UICollectionViewDataSource, UICollectionViewDelegate, PUAlbumListCellDelegate> {
    PUSessionInfo* _sessionInfo;
    id<PUAlbumPickingDelegate> _pickingDelegate;
    NSArray* _rows;
    UICollectionView* _mainCollectionView;
    UIView* _pickerBannerView;
}
/// nil, unless set before the view loads, when albums are opened and edited.
@property (nonatomic, retain) PUSessionInfo* sessionInfo;
/// Not retained.
@property (nonatomic, assign) id<PUAlbumPickingDelegate> pickingDelegate;
@property (nonatomic, readonly) UICollectionView* mainCollectionView;
/// The banner above the list while an album is being picked, else nil.
@property (nonatomic, readonly) UIView* _pickerBannerView;

/// The collection of a row; nil for the row of people, which is none.
- (PHCollection*)collectionAtIndexPath:(NSIndexPath*)path;
/// Reads the albums anew and shows them.
- (void)reloadContentView;
- (void)didSelectItemAtIndexPath:(NSIndexPath*)path;
- (NSIndexPath*)indexPathForFirstEditableAlbum;

- (BOOL)showPeople;
- (BOOL)showPlaces;
- (BOOL)alwaysHideTabBar;
- (BOOL)disallowsSearch;
- (NSString*)titleForCollection:(PHCollection*)collection;
- (NSString*)subtitleForCollection:(PHCollection*)collection;
- (void)setTitleForCell:(id)cell withCollection:(PHCollection*)collection;

/// nil for a row that is not on the screen.
- (PUAlbumListCellContentView*)visibleAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path;
/// Also for a row that is not on the screen, whose cell is then made.
- (PUAlbumListCellContentView*)_preparedAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path;
@end
