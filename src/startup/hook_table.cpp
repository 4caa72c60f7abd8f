#include "startup/hook_table.h"

#include "capture/hooks.h"
#include "filtering/hooks.h"
#include "photos/albumactions/hooks.h"
#include "photos/albumlist/hooks.h"
#include "photos/albumsscreen/hooks.h"
#include "state/file_writing_service.h"

namespace rollkeeper {

namespace {

using enum HookGroup;
using enum MethodKind;

// One row per line, so that the table reads as one.
// clang-format off
constexpr HookRow rows[] = {
    // Camera
    {camera, "CAMCaptureEngine", instanceMethod, "captureOutput:didFinishCaptureForResolvedSettings:error:", replacement<"v@:@@@", camera::didFinishCapture, ResultRule::pointerDespiteVoid>()},
    {camera, "CAMCaptureEngine", instanceMethod, "movePhoto", addition<"v@:", camera::movePhoto>()},
    {camera, "CAMBottomBar", instanceMethod, "layoutSubviews", replacement<"v@:", camera::layoutBottomBar>()},
    {camera, "CAMBottomBar", instanceMethod, "chooseAlbum", addition<"v@:", camera::chooseAlbum>()},
    {camera, "CAMBottomBar", instanceMethod, "createNewAlbum", addition<"v@:", camera::createNewAlbum>()},
    {camera, "CAMImageWell", instanceMethod, "thumbnailImage", replacement<"@@:", camera::thumbnailImage>()},

    // Photos
    {photos, "PhotosApplication", instanceMethod, "applicationDidEnterBackground:", replacement<"v@:@", photosFrame::didEnterBackground>()},
    {photos, "PhotosApplication", instanceMethod, "returnToMainView", addition<"v@:", photosFrame::returnToMainView>()},
    {photos, "PUTabbedLibraryViewController", instanceMethod, "excludedContentModes", replacement<"@@:", photosFrame::excludedContentModes>()},
    {photos, "UITabBar", instanceMethod, "layoutSubviews", replacement<"v@:", photosFrame::layoutTabBar>()},
    {photos, "UITabBar", instanceMethod, "hidden", replacement<"B@:", photosFrame::isTabBarHidden>()},
    {photos, "PXRoundedCornerOverlayView", instanceMethod, "layoutSubviews", replacement<"v@:", photosFrame::layoutCoverOverlay>()},
    {photos, "PUAlbumListViewController", instanceMethod, "viewWillAppear:", replacement<"v@:B", albumList::viewWillAppear>()},
    {photos, "PUAlbumListViewController", instanceMethod, "viewDidLayoutSubviews", replacement<"v@:", albumList::viewDidLayoutSubviews>()},
    {photos, "PUAlbumListViewController", instanceMethod, "collectionView:cellForItemAtIndexPath:", replacement<"@@:@@", albumList::cellForItem>()},
    {photos, "PUAlbumListViewController", instanceMethod, "reloadContentView", replacement<"v@:", albumList::reloadContentView>()},
    {photos, "PUAlbumListViewController", instanceMethod, "viewWillTransitionToSize:withTransitionCoordinator:", replacement<"v@:{CGSize=dd}@", albumList::viewWillTransition>()},
    {photos, "PUAlbumListViewController", instanceMethod, "didSelectItemAtIndexPath:", replacement<"v@:@", albumList::didSelectItem>()},
    {photos, "PUAlbumListViewController", instanceMethod, "handleHiddenPress:", addition<"v@:@", albumList::handleHiddenPress>()},
    {photos, "PUAlbumListViewController", instanceMethod, "handleLongPress:", addition<"v@:@", albumList::handleLongPress>()},
    {photos, "PUAlbumListViewController", instanceMethod, "unlockAlbum:withAlbum:", addition<"v@:i@", albumList::unlockAlbum>()},
    {photos, "PUAlbumListViewController", instanceMethod, "requestPassword:", addition<"v@:i", albumList::requestPassword>()},
    {photos, "PUAlbumListViewController", instanceMethod, "unlockAuthorised:", addition<"v@:i", albumList::unlockAuthorised>()},
    {photos, "PUAlbumListViewController", instanceMethod, "reloadCameraRollWithMove:", addition<"v@:B", albumList::reloadCameraRoll>()},
    {photos, "PUAlbumListViewController", instanceMethod, "showPeople", replacement<"B@:", albumList::showPeople>()},
    {photos, "PUAlbumListViewController", instanceMethod, "showPlaces", replacement<"B@:", albumList::showPlaces>()},
    {photos, "PUAlbumListViewController", instanceMethod, "albumListCellContentView:performDeleteAction:", replacement<"v@:@@", albumList::performDeleteAction>()},
    {photos, "PUAlbumListViewController", instanceMethod, "setEditing:animated:", replacement<"v@:BB", albumList::setEditing>()},
    {photos, "PUAlbumListViewController", instanceMethod, "indexPathForFirstEditableAlbum", replacement<"@@:", albumList::indexPathForFirstEditableAlbum>()},
    {photos, "PUAlbumListViewController", instanceMethod, "titleForCollection:", replacement<"@@:@", albumList::titleForCollection>()},
    {photos, "PUAlbumListViewController", instanceMethod, "subtitleForCollection:", replacement<"@@:@", albumList::subtitleForCollection>()},
    {photos, "PUAlbumListViewController", instanceMethod, "disallowsSearch", replacement<"B@:", albumList::disallowsSearch>()},
    {photos, "PUAlbumListViewController", instanceMethod, "alwaysHideTabBar", replacement<"B@:", albumList::alwaysHideTabBar>()},
    {photos, "PUAlbumListViewController", instanceMethod, "pu_wantsTabBarVisible", replacement<"B@:", albumList::wantsTabBarVisible>()},
    {photos, "PUDeletePhotosActionController", instanceMethod, "shouldSkipDeleteConfirmation", replacement<"B@:", viewTweaks::shouldSkipDeleteConfirmation>()},
    {photos, "PUPhotosSharingViewController", instanceMethod, "viewDidLayoutSubviews", replacement<"v@:", photosFrame::sharingDidLayoutSubviews>()},
    {photos, "PUNavigationController", instanceMethod, "navigationBar", replacement<"@@:", photosFrame::navigationBar>()},
    {photos, "PUNavigationController", instanceMethod, "syncAlbums", addition<"v@:", photosFrame::syncAlbums>()},
    {photos, "PUAlbumListCellContentView", instanceMethod, "layoutSubviews", replacement<"v@:", albumCell::layoutSubviews>()},
    {photos, "PUAlbumListCellContentView", instanceMethod, "showsDeleteButtonWhenEditing", replacement<"B@:", albumCell::showsDeleteButtonWhenEditing>()},
    {photos, "PUAlbumListCellContentView", instanceMethod, "createButtons", addition<"v@:", albumCell::createButtons>()},
    {photos, "PUAlbumListCellContentView", instanceMethod, "askToMoveAlbum", addition<"v@:", albumCell::askToMoveAlbum>()},
    {photos, "PUAlbumListCellContentView", instanceMethod, "moveAlbum", addition<"v@:", albumCell::moveAlbum>()},
    {photos, "PUAlbumListCellContentView", instanceMethod, "lockAlbum", addition<"v@:", albumCell::lockAlbum>()},
    {photos, "PUAlbumListCellContentView", instanceMethod, "unlockAlbum:", addition<"v@:i", albumCell::unlockAlbum>()},
    {photos, "PUAlbumListCellContentView", instanceMethod, "requestPassword:", addition<"v@:i", albumCell::requestPassword>()},
    {photos, "PUAlbumListCellContentView", instanceMethod, "unlockAuthorised:", addition<"v@:i", albumCell::unlockAuthorised>()},
    {photos, "PUOneUpBarsController", instanceMethod, "_performRestoreAction", replacement<"v@:", albumContents::performRestoreAction>()},
    {photos, "PUOneUpViewController", instanceMethod, "viewDidLayoutSubviews", replacement<"v@:", albumContents::oneUpDidLayoutSubviews>()},
    {photos, "PUPhotosAlbumViewController", instanceMethod, "_removeButtonPressed:", replacement<"v@:@", albumContents::removeButtonPressed>()},
    {photos, "PUPhotosAlbumViewController", instanceMethod, "shouldShowSectionHeaders", replacement<"B@:", albumContents::shouldShowSectionHeaders>()},
    {photos, "PUPhotosAlbumViewController", instanceMethod, "setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults:", replacement<"v@:@@@@", albumContents::setAssetCollection>()},
    {photos, "PUPhotosAlbumViewController", instanceMethod, "initiallyScrolledToBottom", replacement<"B@:", albumContents::initiallyScrolledToBottom>()},
    {photos, "PUPhotosAlbumViewController", instanceMethod, "_removeSelectedAssetsWithCompletion:", replacement<"v@:@?", albumContents::removeSelectedAssets>()},
    {photos, "PUPhotosAlbumViewController", instanceMethod, "pu_wantsTabBarVisible", replacement<"B@:", albumContents::wantsTabBarVisible>()},
    {photos, "PXUIButton", instanceMethod, "layoutSubviews", replacement<"v@:", albumCell::layoutButton>()},
    {photos, "PUZoomableGridViewController", instanceMethod, "viewWillAppear:", replacement<"v@:B", albumContents::gridWillAppear>()},
    {photos, "PUAssetViewModel", instanceMethod, "wantsIrisBadgeVisible", replacement<"B@:", viewTweaks::wantsIrisBadgeVisible>()},
    {photos, "PUOneUpSettings", instanceMethod, "setDefaultMaximumZoomFactor:", replacement<"v@:d", viewTweaks::setDefaultMaximumZoomFactor>()},
    {photos, "PXPhotoKitCollectionsDataSourceManager", instanceMethod, "canReorderCollection:", replacement<"B@:@", viewTweaks::canReorderCollection>()},

    // Messenger
    {messenger, "MNPhotosAlbumDataSource", instanceMethod, "albumAtIndex:", replacement<"@@:q", outsidePickers::messengerAlbumAtIndex>()},
    {messenger, "MNMontageAlbumListViewController", instanceMethod, "_albumAtIndexPath:", replacement<"@@:@", outsidePickers::messengerAlbumAtIndexPath>()},
    {messenger, "MNMontageAlbumListViewController", instanceMethod, "tableView:cellForRowAtIndexPath:", replacement<"@@:@@", outsidePickers::messengerCellForRow>()},

    // WhatsApp
    {whatsApp, "PHAssetCollection", classMethod, "fetchAssetCollectionsWithType:subtype:options:", replacement<"@@:qq@", outsidePickers::whatsAppFetchAssetCollections>()},

    // imgur
    {imgur, "PHAsset", classMethod, "fetchAssetsInAssetCollection:options:", replacement<"@@:@@", outsidePickers::imgurFetchAssetsInCollection>()},

    // SpringBoard
    {springBoard, "SpringBoard", instanceMethod, "applicationDidFinishLaunching:", replacement<"v@:@", applicationDidFinishLaunching>()},
    {springBoard, "SpringBoard", instanceMethod, "handleMessageNamed:withUserInfo:", addition<"v@:@@", handleMessage, ResultRule::pointerDespiteVoid>()},

    // Every process
    {everywhere, "UISaveToCameraRollActivity", instanceMethod, "performActivity", replacement<"v@:", shareActivity::performActivity, ResultRule::pointerDespiteVoid>()},
    {everywhere, "UISaveToCameraRollActivity", instanceMethod, "movePhoto", addition<"v@:", shareActivity::movePhoto>()},
    {everywhere, "UISaveToCameraRollActivity", instanceMethod, "createNewAlbum", addition<"v@:", shareActivity::createNewAlbum>()},
    {everywhere, "UISaveToCameraRollActivity", instanceMethod, "chooseAlbum", addition<"v@:", shareActivity::chooseAlbum>()},
    {everywhere, "PHCollectionList", instanceMethod, "collections", replacement<"@@:", filtering::collections>()},
    {everywhere, "PHFetchResult", instanceMethod, "fetchedObjects", replacement<"@@:", filtering::fetchedObjects>()},
    {everywhere, "PHFetchResult", instanceMethod, "fetchedObjectIDsSet", replacement<"@@:", filtering::fetchedObjectIDsSet>()},
    {everywhere, "PHAsset", classMethod, "fetchAssetsInAssetCollection:options:", replacement<"@@:@@", filtering::fetchAssetsInCollection>()},
    {everywhere, "PHAsset", classMethod, "fetchKeyAssetsInAssetCollection:options:", replacement<"@@:@@", filtering::fetchKeyAssets>()},

    // Every process from iOS 10 on
    {everywhereFromIos10, "PHAssetCollection", classMethod, "fetchAssetCollectionsWithType:subtype:options:", replacement<"@@:qq@", filtering::fetchAssetCollections>()},

    // Photos from iOS 12 on: the Albums screen
    {albumsScreen, "PUHorizontalAlbumListGadget", instanceMethod, "collectionView:didSelectItemAtIndexPath:", replacement<"v@:@@", albumsScreen::didSelectItem>()},
    {albumsScreen, "PUHorizontalAlbumListGadget", instanceMethod, "_canUseStackedAlbumTransitionToNavigationToCollection:", replacement<"B@:@", albumsScreen::canUseStackedTransition>()},
    {albumsScreen, "PUHorizontalAlbumListGadget", instanceMethod, "navigateToCollection:animated:completion:", replacement<"v@:@B@?", albumsScreen::navigateToCollection<PUHorizontalAlbumListGadget>>()}, // 12.0
    {albumsScreen, "PUHorizontalAlbumListGadget", instanceMethod, "navigateToAssetCollection:animated:", replacement<"@@:@B", albumsScreen::navigateToAlbum>()}, // 12.1 and, inferred, later
    {albumsScreen, "PUHorizontalAlbumListGadget", instanceMethod, "requestPassword:", addition<"v@:i", albumsScreen::requestPassword>()},
    {albumsScreen, "PUHorizontalAlbumListGadget", instanceMethod, "unlockAuthorised:", addition<"v@:i", albumsScreen::unlockAuthorised>()},
    {albumsScreen, "PUAlbumsGadgetViewController", instanceMethod, "navigateToCollection:animated:completion:", replacement<"v@:@B@?", albumsScreen::navigateToCollection<PUAlbumsGadgetViewController>>()},
    {albumsScreen, "PUAlbumsGadgetViewController", instanceMethod, "requestPassword:", addition<"v@:i", albumsScreen::requestPassword>()},
    {albumsScreen, "PUAlbumsGadgetViewController", instanceMethod, "unlockAuthorised:", addition<"v@:i", albumsScreen::unlockAuthorised>()},
    {albumsScreen, "PXNavigationListGadget", instanceMethod, "navigateToCollection:animated:completion:", replacement<"v@:@B@?", albumsScreen::navigateToCollection<PXNavigationListGadget>>()},
    {albumsScreen, "PXNavigationListGadget", instanceMethod, "requestPassword:", addition<"v@:i", albumsScreen::requestPassword>()},
    {albumsScreen, "PXNavigationListGadget", instanceMethod, "unlockAuthorised:", addition<"v@:i", albumsScreen::unlockAuthorised>()},
    {albumsScreen, "PUAlbumListCellContentViewHelper", instanceMethod, "configureAlbumListCellContentView:forCollection:title:animated:enabled:editing:", replacement<"v@:@@@BBB", albumsScreen::configureContentView>()},
    {albumsScreen, "PXHorizontalCollectionGadget", instanceMethod, "previewViewControllerAtLocation:fromSourceView:outSourceRect:", replacement<"@@:{CGPoint=dd}@^{CGRect={CGPoint=dd}{CGSize=dd}}", albumsScreen::previewController>()}, // 12.1 and, inferred, later
};
// clang-format on

} // namespace

std::span<const HookRow> hookTable() { return rows; }

} // namespace rollkeeper
