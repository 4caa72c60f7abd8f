#pragma once

#import "PhotosUI/PUAlbumListCell.h"
#import "PhotosUI/PUAlbumListViewController.h"
#import "PhotosUI/PUAlbumsGadgetViewController.h"
#import "PhotosUI/PUNavigationController.h"
#import "PhotosUI/PUOneUp.h"
#import "PhotosUI/PUPhotoActions.h"
#import "PhotosUI/PUPhotosGrid.h"
#import "PhotosUI/PUTabbedLibraryViewController.h"
