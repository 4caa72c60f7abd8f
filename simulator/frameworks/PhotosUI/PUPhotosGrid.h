#pragma once

#import "PhotosUI/PUAlbumListViewController.h"

/// A grid of photos: opens one, or lets the user select several and remove or recover them or put them into
/// an album. Subclasses say which photos.
@interface PUPhotosGridViewController : UICollectionViewController <PUAlbumPickingDelegate> {
    PHFetchResult* _assets;
    NSMutableOrderedSet* _selectedAssets;
    BOOL _alwaysHideTabBar;
    BOOL _needsScrollToBottom;
}
@property (nonatomic, readonly) PHFetchResult* assets;
@property (nonatomic) BOOL alwaysHideTabBar;
/// The photos of this grid; for subclasses.
- (PHFetchResult*)fetchAssets;
/// Reads the photos anew and shows them.
- (void)reloadAssets;
/// The album that the photos lie in and can be taken out of, or nil; for subclasses.
- (PHAssetCollection*)editableAlbum;
- (BOOL)isTrashBinViewController;

/// A live container, not an array; empty outside selection mode, which is the edit mode of the controller.
- (id)selectedAssets;
- (void)setSelected:(BOOL)selected forAsset:(PHAsset*)asset;
- (BOOL)initiallyScrolledToBottom;

- (void)_removeButtonPressed:(id)sender;
/// Takes the selected photos out of the album or, where there is none, deletes them; the block may be nil and
/// runs on the main thread.
- (void)_removeSelectedAssetsWithCompletion:(void (^)(BOOL success))completion;
@end

/// The contents of one album.
@interface PUPhotosAlbumViewController : PUPhotosGridViewController {
    PHAssetCollection* _assetCollection;
    NSPredicate* _filterPredicate;
}
@property (nonatomic, readonly) PHAssetCollection* assetCollection;
/// Shows the album's photos, those that the predicate lets pass when there is one.
- (void)setAssetCollection:(PHAssetCollection*)collection
    fetchResultContainingAssetCollection:(PHFetchResult*)containingResult
                         filterPredicate:(NSPredicate*)predicate
                    existingFetchResults:(id)existingResults;
- (BOOL)shouldShowSectionHeaders;
@end

/// All photos by moments.
@interface PUZoomableGridViewController : PUPhotosGridViewController
@end
