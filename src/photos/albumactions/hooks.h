// The methods of Photos' other views that are replaced and added. Main thread, unless a comment says
// otherwise.
#pragma once

#include "platform/photos_ui.h"

namespace rollkeeper {

// PUAlbumListCellContentView and PXUIButton: the move and lock buttons of an album's cell.
namespace albumCell {

void layoutSubviews(PUAlbumListCellContentView self, SEL command);
bool showsDeleteButtonWhenEditing(PUAlbumListCellContentView self, SEL command);
void createButtons(PUAlbumListCellContentView self, SEL command);
void askToMoveAlbum(PUAlbumListCellContentView self, SEL command);
void moveAlbum(PUAlbumListCellContentView self, SEL command);
void lockAlbum(PUAlbumListCellContentView self, SEL command);
void unlockAlbum(PUAlbumListCellContentView self, SEL command, int purpose);
void requestPassword(PUAlbumListCellContentView self, SEL command, int purpose);
void unlockAuthorised(PUAlbumListCellContentView self, SEL command, int purpose);
void layoutButton(UIView self, SEL command);

} // namespace albumCell

// Album contents: photos that leave their last album, or return from Recently Deleted, become visible again.
namespace albumContents {

void performRestoreAction(PUOneUpBarsController self, SEL command);
void oneUpDidLayoutSubviews(PUOneUpViewController self, SEL command);
void gridWillAppear(PUZoomableGridViewController self, SEL command, bool animated);
void removeButtonPressed(PUPhotosAlbumViewController self, SEL command, NSObject sender);
void removeSelectedAssets(PUPhotosAlbumViewController self, SEL command, Block completion);
void setAssetCollection(PUPhotosAlbumViewController self, SEL command, PHAssetCollection collection,
                        PHFetchResult container, NSPredicate filter, NSObject existingResults);
bool shouldShowSectionHeaders(PUPhotosAlbumViewController self, SEL command);
bool initiallyScrolledToBottom(PUPhotosAlbumViewController self, SEL command);
bool wantsTabBarVisible(PUPhotosAlbumViewController self, SEL command);

} // namespace albumContents

// The frame around the screens: application, tabs, navigation bar.
namespace photosFrame {

void didEnterBackground(PhotosApplication self, SEL command, UIApplication application);
void returnToMainView(PhotosApplication self, SEL command);
NSArray excludedContentModes(PUTabbedLibraryViewController self, SEL command);
void layoutTabBar(UITabBar self, SEL command);
bool isTabBarHidden(UITabBar self, SEL command);
void layoutCoverOverlay(UIView self, SEL command);
UINavigationBar navigationBar(PUNavigationController self, SEL command);
void syncAlbums(PUNavigationController self, SEL command);
void sharingDidLayoutSubviews(PUPhotosSharingViewController self, SEL command);

} // namespace photosFrame

// One answer each, by a setting.
namespace viewTweaks {

bool shouldSkipDeleteConfirmation(NSObject self, SEL command);
bool wantsIrisBadgeVisible(NSObject self, SEL command);
void setDefaultMaximumZoomFactor(NSObject self, SEL command, double factor);
bool canReorderCollection(NSObject self, SEL command, PHCollection collection);

} // namespace viewTweaks

} // namespace rollkeeper
