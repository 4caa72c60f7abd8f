#pragma once

#import "Photos/Photos.h"
#import "PhotosUI/PUAlbumListCell.h"
#import "UIKit/UIKit.h"

/// What the album list needs to know while the user chooses an album to put photos into.
@interface PUAlbumPickerSessionInfo : NSObject {
    NSArray* _transferredAssets;
    void (^_completionHandler)(BOOL added);
}
/// The handler runs once on the main thread, with NO when the user cancelled or the library refused.
- (instancetype)initWithTransferredAssets:(NSArray*)assets completionHandler:(void (^)(BOOL added))handler;
@property (nonatomic, readonly) NSArray* transferredAssets;
- (void)finishWithResult:(BOOL)added;
@end

/// The grid of the library's albums: opens them, edits them, or lets the user choose one to put photos into.
@interface PUAlbumListViewController
    : UIViewController <UICollectionViewDataSource, UICollectionViewDelegate, PUAlbumListCellDelegate> {
    PHCollectionList* _collectionList;
    PUAlbumPickerSessionInfo* _sessionInfo;
    NSArray* _rows;
    UICollectionView* _mainCollectionView;
    UIView* _pickerBannerView;
    BOOL _disallowsSearch;
}
/// The albums of a folder; nil stands for the whole library.
- (instancetype)initWithCollectionList:(PHCollectionList*)list;
/// Lets the user choose an album to put the photos (PHAsset) into, over the presenter; the list goes away as
/// the handler runs.
+ (void)presentPickerForAssets:(NSArray*)assets
            fromViewController:(UIViewController*)presenter
             completionHandler:(void (^)(BOOL added))handler;
/// nil unless an album is being picked; set before the view loads.
@property (nonatomic, retain) PUAlbumPickerSessionInfo* sessionInfo;
@property (nonatomic) BOOL disallowsSearch;
- (UICollectionView*)mainCollectionView;

/// The collection of a row; nil for the row of people, which is none.
- (PHCollection*)collectionAtIndexPath:(NSIndexPath*)path;
/// Reads the albums anew and shows them.
- (void)reloadContentView;
- (void)didSelectItemAtIndexPath:(NSIndexPath*)path;
- (NSIndexPath*)indexPathForFirstEditableAlbum;

- (BOOL)showPeople;
- (BOOL)showPlaces;
- (BOOL)alwaysHideTabBar;
- (NSString*)titleForCollection:(PHCollection*)collection;
- (NSString*)subtitleForCollection:(PHCollection*)collection;
- (void)setTitleForCell:(id)cell withCollection:(PHCollection*)collection;

/// The banner above the list while an album is being picked, else nil.
- (UIView*)_pickerBannerView;
/// nil for a row that is not on the screen.
- (PUAlbumListCellContentView*)visibleAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path;
/// Also for a row that is not on the screen, whose cell is then made.
- (PUAlbumListCellContentView*)_preparedAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path;
@end
