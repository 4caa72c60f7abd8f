#pragma once

#import "Photos/Photos.h"
#import "PhotosUI/PUNavigationController.h"
#import "UIKit/UIKit.h"

@class PUAlbumPickerSessionInfo;

/// Remembers which photos of a grid are selected, in the order in which they were.
@interface PUPhotoSelectionManager : NSObject {
    NSMutableOrderedSet* _selection;
}
- (NSSet*)selectedAssets;
/// The selection itself: it changes with every tap.
- (NSOrderedSet*)orderedSelectedAssets;
- (BOOL)isAssetSelected:(PHAsset*)asset;
- (void)setSelected:(BOOL)selected forAsset:(PHAsset*)asset;
- (void)deselectAllAssets;
@end

/// A grid of photos: opens one, or lets the user select several and remove, recover or share them or put them
/// into an album. Subclasses say which photos.
@interface PUPhotosGridViewController : UICollectionViewController {
    PUPhotoSelectionManager* _selectionManager;
    PHFetchResult* _assets;
    BOOL _alwaysHideTabBar;
    BOOL _needsScrollToBottom;
}
@property (nonatomic) BOOL alwaysHideTabBar;
@property (nonatomic, readonly) PHFetchResult* assets;
@property (nonatomic, readonly) PUPhotoSelectionManager* photoSelectionManager;
/// The photos of this grid; for subclasses.
- (PHFetchResult*)fetchAssets;
/// Reads the photos anew and shows them.
- (void)reloadAssets;
/// The album that the photos lie in and can be taken out of, or nil; for subclasses.
- (PHAssetCollection*)editableAlbum;
- (BOOL)showsTrash;

/// A live container, not an array; empty outside selection mode, which is the edit mode of the controller.
- (id)selectedAssets;
- (BOOL)initiallyScrolledToBottom;
- (void)openAssetAtIndex:(NSUInteger)index;

- (void)_removeButtonPressed:(id)sender;
/// Takes the selected photos out of the album or, where there is none, deletes them; the block may be nil and
/// runs on the main thread.
- (void)_removeSelectedAssetsWithCompletion:(void (^)(BOOL success))completion;
- (void)_shareButtonPressed:(id)sender;
- (void)_addToAlbumButtonPressed:(id)sender;
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
- (BOOL)isTrashBinViewController;
- (BOOL)shouldShowSectionHeaders;
@end

/// All photos by moments.
@interface PUZoomableGridViewController : PUPhotosGridViewController
@end
