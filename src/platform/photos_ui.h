// PhotosUI and PhotosUICore, private frameworks of the Photos application.
//
// Which class and selector exists depends on the system release: where a selector may be missing, its wrapper
// says so, and the caller asks `respondsTo` first.
#pragma once

#include "platform/photos.h"
#include "platform/uikit.h"

namespace rollkeeper {

// Sets or clears the hidden flag of assets. Missing where PhotosUI is not loaded; iOS 8 has
// another class of this name.
struct PUAssetHidingHelper : NSObject {
    static constexpr FixedString className = "PUAssetHidingHelper";

    // The array is copied.
    void setAssets(NSArray assets) const { send<PUAssetHidingHelper, "setAssets:", void>(*this, assets); }
    // Works on a queue of the framework; the handler, void(), runs there and may be nil.
    void applyHiddenState(bool hidden, Block completion) const {
        send<PUAssetHidingHelper, "applyHiddenState:completionHandler:", void>(*this, hidden, completion);
    }
};

struct PUAlbumListCellContentView : UIView {
    static constexpr FixedString className = "PUAlbumListCellContentView";

    NSString title() const {
        return ifKindOf<NSString>(send<PUAlbumListCellContentView, "title", NSString>(*this));
    }
    void setSubtitle(NSString text) const {
        send<PUAlbumListCellContentView, "setSubtitle:", void>(*this, text);
    }
    NSUInteger editCapabilities() const {
        return send<PUAlbumListCellContentView, "editCapabilities", NSUInteger>(*this);
    }
    void setEditCapabilities(NSUInteger capabilities) const {
        send<PUAlbumListCellContentView, "setEditCapabilities:", void>(*this, capabilities);
    }
    UIView stackView() const { return send<PUAlbumListCellContentView, "stackView", UIView>(*this); }
    UIView deleteButton() const { return send<PUAlbumListCellContentView, "_deleteButton", UIView>(*this); }
    UITextField titleTextField() const {
        return send<PUAlbumListCellContentView, "_titleTextField", UITextField>(*this);
    }
    UILabel subtitleLabel() const {
        return send<PUAlbumListCellContentView, "_subtitleLabel", UILabel>(*this);
    }

    // Added by the library.
    void createButtons() const { send<PUAlbumListCellContentView, "createButtons", void>(*this); }
    void moveAlbum() const { send<PUAlbumListCellContentView, "moveAlbum", void>(*this); }
    void lockAlbum() const { send<PUAlbumListCellContentView, "lockAlbum", void>(*this); }
    void unlockAlbum(int purpose) const {
        send<PUAlbumListCellContentView, "unlockAlbum:", void>(*this, purpose);
    }
};

struct PUAlbumListCell : UIView {
    static constexpr FixedString className = "PUAlbumListCell";

    PUAlbumListCellContentView albumListCellContentView() const {
        return send<PUAlbumListCell, "albumListCellContentView", PUAlbumListCellContentView>(*this);
    }
};

// Nil for the table variant of the cell, which has no content view to ask for.
inline PUAlbumListCellContentView contentViewOf(UIView cell) {
    if (!cell.respondsTo<"albumListCellContentView">()) return PUAlbumListCellContentView();
    return cast<PUAlbumListCell>(cell).albumListCellContentView();
}

// What is on its way to an album while the album list is used to pick one. iOS 8 to 12.
struct PUSessionInfo : NSObject {
    static constexpr FixedString className = "PUSessionInfo";

    // An ordered set of assets, nil before anything was chosen.
    NSObject transferredAssets() const { return send<PUSessionInfo, "transferredAssets", NSObject>(*this); }
};

struct PUAlbumListViewController : UIViewController {
    static constexpr FixedString className = "PUAlbumListViewController";

    UIView pickerBannerView() const {
        return send<PUAlbumListViewController, "_pickerBannerView", UIView>(*this);
    }
    // Nil outside picking.
    PUSessionInfo sessionInfo() const {
        return send<PUAlbumListViewController, "sessionInfo", PUSessionInfo>(*this);
    }
    void reloadContentView() const { send<PUAlbumListViewController, "reloadContentView", void>(*this); }
    // Up to iOS 10.2.
    PUAlbumListCellContentView visibleContentView(NSIndexPath path) const {
        return send<PUAlbumListViewController,
                    "visibleAlbumListCellContentViewAtIndexPath:", PUAlbumListCellContentView>(*this, path);
    }
    // From iOS 10.3 on.
    PUAlbumListCellContentView preparedContentView(NSIndexPath path) const {
        return send<PUAlbumListViewController,
                    "_preparedAlbumListCellContentViewAtIndexPath:", PUAlbumListCellContentView>(*this, path);
    }
    void didSelectItem(NSIndexPath path) const {
        send<PUAlbumListViewController, "didSelectItemAtIndexPath:", void>(*this, path);
    }
    void performDeleteAction(PUAlbumListCellContentView contentView, NSObject sender) const {
        send<PUAlbumListViewController, "albumListCellContentView:performDeleteAction:", void>(
            *this, contentView, sender);
    }

    // Added by the library.
    void unlockAlbum(int purpose, NSString title) const {
        send<PUAlbumListViewController, "unlockAlbum:withAlbum:", void>(*this, purpose, title);
    }
    void handleLongPress(UIGestureRecognizer recognizer) const {
        send<PUAlbumListViewController, "handleLongPress:", void>(*this, recognizer);
    }
    void reloadCameraRollWithMove(bool move) const {
        send<PUAlbumListViewController, "reloadCameraRollWithMove:", void>(*this, move);
    }
};

// The parts of the Albums screen that stands before the album list from iOS 12 on.

struct PUAlbumsGadgetViewController : UIViewController {
    static constexpr FixedString className = "PUAlbumsGadgetViewController";
};

struct PXHorizontalCollectionGadget : UIViewController {
    static constexpr FixedString className = "PXHorizontalCollectionGadget";
};

struct PUHorizontalAlbumListGadget : PXHorizontalCollectionGadget {
    static constexpr FixedString className = "PUHorizontalAlbumListGadget";
};

struct PXNavigationListGadget : NSObject {
    static constexpr FixedString className = "PXNavigationListGadget";
};

struct PUAlbumListCellContentViewHelper : NSObject {
    static constexpr FixedString className = "PUAlbumListCellContentViewHelper";
};

struct PUPhotosGridViewController : UIViewController {
    static constexpr FixedString className = "PUPhotosGridViewController";

    // A set, an ordered set or an array: count and enumerate only.
    NSObject selectedAssets() const {
        return send<PUPhotosGridViewController, "selectedAssets", NSObject>(*this);
    }
};

struct PUZoomableGridViewController : PUPhotosGridViewController {
    static constexpr FixedString className = "PUZoomableGridViewController";
};

struct PUPhotosAlbumViewController : PUPhotosGridViewController {
    static constexpr FixedString className = "PUPhotosAlbumViewController";

    PHAssetCollection assetCollection() const {
        return send<PUPhotosAlbumViewController, "assetCollection", PHAssetCollection>(*this);
    }
    NSObject collectionViewLayout() const {
        return send<PUPhotosAlbumViewController, "collectionViewLayout", NSObject>(*this);
    }
    bool isTrashBinViewController() const {
        return send<PUPhotosAlbumViewController, "isTrashBinViewController", bool>(*this);
    }
};

// The tile of an image or a video; the base class of tiles has no asset, so ask respondsTo first.
struct PUImageTileViewController : NSObject {
    static constexpr FixedString className = "PUImageTileViewController";

    PHAsset asset() const {
        return ifKindOf<PHAsset>(send<PUImageTileViewController, "asset", PHAsset>(*this));
    }
};

struct PUOneUpViewController : UIViewController {
    static constexpr FixedString className = "PUOneUpViewController";

    PUImageTileViewController currentContentTileController() const {
        return send<PUOneUpViewController, "_currentContentTileController", PUImageTileViewController>(*this);
    }
};

struct PUAssetReference : NSObject {
    static constexpr FixedString className = "PUAssetReference";
    PHAsset asset() const { return ifKindOf<PHAsset>(send<PUAssetReference, "asset", PHAsset>(*this)); }
};

struct PUBrowsingViewModel : NSObject {
    static constexpr FixedString className = "PUBrowsingViewModel";
    PUAssetReference currentAssetReference() const {
        return send<PUBrowsingViewModel, "currentAssetReference", PUAssetReference>(*this);
    }
};

struct PUBrowsingSession : NSObject {
    static constexpr FixedString className = "PUBrowsingSession";
    PUBrowsingViewModel viewModel() const {
        return send<PUBrowsingSession, "viewModel", PUBrowsingViewModel>(*this);
    }
};

struct PUOneUpBarsController : NSObject {
    static constexpr FixedString className = "PUOneUpBarsController";

    PUBrowsingSession browsingSession() const {
        return send<PUOneUpBarsController, "browsingSession", PUBrowsingSession>(*this);
    }
};

struct PUNavigationController : UINavigationController {
    static constexpr FixedString className = "PUNavigationController";

    // From iOS 9 on.
    UIViewController currentToolbarViewController() const {
        return send<PUNavigationController, "_currentToolbarViewController", UIViewController>(*this);
    }
};

struct PUPhotosSharingViewController : UIViewController {
    static constexpr FixedString className = "PUPhotosSharingViewController";
};

struct PUTabbedLibraryViewController : UIViewController {
    static constexpr FixedString className = "PUTabbedLibraryViewController";

    UINavigationController selectedNavigationController() const {
        return send<PUTabbedLibraryViewController, "selectedNavigationController", UINavigationController>(
            *this);
    }
};

struct PhotosApplication : UIApplication {
    static constexpr FixedString className = "PhotosApplication";

    // An instance variable in the releases known: ask respondsTo first.
    PUTabbedLibraryViewController tabbedLibraryViewController() const {
        return send<PhotosApplication, "_tabbedLibraryViewController", PUTabbedLibraryViewController>(*this);
    }

    // Added by the library.
    void returnToMainView() const { send<PhotosApplication, "returnToMainView", void>(*this); }
};

} // namespace rollkeeper
