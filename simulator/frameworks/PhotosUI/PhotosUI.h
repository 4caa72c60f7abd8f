#pragma once

#import "PhotosUI/PUAlbumListCell.h"
#import "PhotosUI/PUAlbumListViewController.h"
#import "PhotosUI/PUAssetHidingHelper.h"
#import "PhotosUI/PUDeletePhotosActionController.h"
#import "PhotosUI/PUNavigationController.h"
#import "PhotosUI/PUOneUp.h"
#import "PhotosUI/PUPhotosGrid.h"
#import "PhotosUI/PUPhotosSharingViewController.h"
#import "PhotosUI/PUTabbedLibraryViewController.h"
