#pragma once

#import "Photos/Photos.h"
#import "UIKit/UIKit.h"

/// Names the asset that a browser is at.
@interface PUAssetReference : NSObject {
    PHAsset* _asset;
}
- (instancetype)initWithAsset:(PHAsset*)asset;
@property (nonatomic, readonly) PHAsset* asset;
@end

/// What the browser knows about how one asset is shown.
@interface PUAssetViewModel : NSObject {
    PHAsset* _asset;
}
- (instancetype)initWithAsset:(PHAsset*)asset;
/// YES for a live photo.
- (BOOL)wantsIrisBadgeVisible;
@end

/// Where a browser is.
@interface PUBrowsingViewModel : NSObject {
    PUAssetReference* _currentAssetReference;
}
@property (nonatomic, retain) PUAssetReference* currentAssetReference;
@end

/// One visit to the one-up view.
@interface PUBrowsingSession : NSObject {
    PUBrowsingViewModel* _viewModel;
    BOOL _inTrash;
}
- (instancetype)initWithAsset:(PHAsset*)asset inTrash:(BOOL)inTrash;
@property (nonatomic, readonly) PUBrowsingViewModel* viewModel;
@property (nonatomic, readonly, getter=isInTrash) BOOL inTrash;
@end

/// Limits of the one-up view.
@interface PUOneUpSettings : NSObject {
    double _defaultMaximumZoomFactor;
}
+ (PUOneUpSettings*)sharedInstance;
- (void)setDefaultValues;
@property (nonatomic) double defaultMaximumZoomFactor;
@end

/// Owns one tile of the one-up view.
@interface PUTileController : NSObject {
    PHAsset* _asset;
}
- (instancetype)initWithAsset:(PHAsset*)asset;
- (PHAsset*)asset;
@end

@interface PUTileViewController : PUTileController {
    UIView* _view;
}
@property (nonatomic, readonly) UIView* view;
@end

@interface PUImageTileViewController : PUTileViewController
- (PHAsset*)asset;
@end

@interface PUVideoTileViewController : PUTileViewController
- (PHAsset*)asset;
@end

/// The bars of the one-up view and what their buttons do.
@interface PUOneUpBarsController : NSObject {
    PUBrowsingSession* _browsingSession;
    UIViewController* _viewController;
}
/// The controller is not retained.
- (instancetype)initWithBrowsingSession:(PUBrowsingSession*)session
                         viewController:(UIViewController*)controller;
@property (nonatomic, readonly) PUBrowsingSession* browsingSession;
- (void)updateBars;
/// Takes the asset out of the trash.
- (void)_performRestoreAction;
- (void)_performTrashAction;
- (void)_performAddToAlbumAction;
@end

/// One photo or video, as large as the screen.
@interface PUOneUpViewController : UIViewController {
    PUBrowsingSession* _browsingSession;
    PUOneUpBarsController* _barsController;
    PUTileController* _contentTileController;
    UIImageView* _irisBadge;
}
- (instancetype)initWithBrowsingSession:(PUBrowsingSession*)session;
@property (nonatomic, readonly) PUBrowsingSession* browsingSession;
@property (nonatomic, readonly) PUOneUpBarsController* barsController;
- (id)_currentContentTileController;
@end
