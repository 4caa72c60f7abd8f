// The one-up view, which shows one photo or video as large as the screen, and what it knows of it.
#pragma once

#import "Photos/Photos.h"
#import "UIKit/UIKit.h"

/// Keeps the asset that an object of the one-up view stands for.
@interface PUAssetHolder : NSObject {
    PHAsset* _asset;
}
- (instancetype)initWithAsset:(PHAsset*)asset;
@property (nonatomic, readonly) PHAsset* asset;
@end

/// Names the asset that a browser is at.
@interface PUAssetReference : PUAssetHolder
@end

/// What the browser knows about how one asset is shown.
@interface PUAssetViewModel : PUAssetHolder
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
@property (nonatomic) double defaultMaximumZoomFactor;
@end

/// Owns one tile of the one-up view.
@interface PUTileController : PUAssetHolder
@end

@interface PUTileViewController : PUTileController {
    UIImageView* _view;
}
@property (nonatomic, readonly) UIImageView* view;
@end

@interface PUImageTileViewController : PUTileViewController
@end

@interface PUVideoTileViewController : PUTileViewController
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
@end

@interface PUOneUpViewController : UIViewController {
    PUBrowsingSession* _browsingSession;
    PUOneUpBarsController* _barsController;
    PUTileViewController* _contentTileController;
}
- (instancetype)initWithBrowsingSession:(PUBrowsingSession*)session;
@property (nonatomic, readonly) PUBrowsingSession* browsingSession;
- (id)_currentContentTileController;
@end
