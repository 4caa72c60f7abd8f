#pragma once

#import "PhotosUI/PUAlbumListCellContentViewHelper.h"
#import "PhotosUICore/PXGadgets.h"

/// A row of albums by their covers, from iOS 12 on.
@interface PUHorizontalAlbumListGadget : PXHorizontalCollectionGadget {
    NSArray* _albums;
    PUAlbumListCellContentViewHelper* _contentViewHelper;
}
/// What it shows (PHAssetCollection).
@property (nonatomic, copy) NSArray* albums;
/// Of the row with its titles.
- (CGFloat)height;
/// Whether the album can open by its stack of photos spreading; it opens another way otherwise.
- (BOOL)_canUseStackedAlbumTransitionToNavigationToCollection:(PHCollection*)collection;
/// On iOS 12.0. The completion may be nil.
- (void)navigateToCollection:(PHCollection*)collection
                    animated:(BOOL)animated
                  completion:(void (^)(BOOL success))completion;
/// From iOS 12.1 on. The screen that is opened.
- (UIViewController*)navigateToAssetCollection:(PHAssetCollection*)collection animated:(BOOL)animated;
@end

/// The Albums screen, the first one of the Albums tab from iOS 12 on: the user's albums in a row, the whole
/// list of albums behind "See All", and tables of the stock albums.
@interface PUAlbumsGadgetViewController
    : PXGadgetViewController <UIViewControllerPreviewingDelegate, PXGadgetNavigation> {
    PUHorizontalAlbumListGadget* _albumRow;
    NSArray* _lists;          // PXNavigationListGadget
    NSMutableArray* _headers; // UIView: of the row, then of the lists
    UIScrollView* _scrollView;
}
@property (nonatomic, readonly) PUHorizontalAlbumListGadget* albumRow;
@property (nonatomic, readonly) NSArray* lists;
/// Reads the albums anew and shows them.
- (void)reload;
@end
