// Finding albums and their photos, moved ones included.
#pragma once

#include "platform/photos.h"

namespace rollkeeper {

// The title that stands for no album: photos stay in the Camera Roll.
inline NSString cameraRollTitle() { return "Camera Roll"_ns; }

// Fetch options that include hidden assets: moved photos are hidden, and still in their albums.
Owner<PHFetchOptions> optionsIncludingHidden();

// The first user album of that title; nil when there is none, or for a nil title.
PHAssetCollection albumWithTitle(NSString title);

// Every asset of the album. A nil album has none.
PHFetchResult assetsOf(PHAssetCollection album);

// In how many user albums the asset is.
NSUInteger countOfAlbumsHolding(PHAsset asset);

// The titles of the user's regular albums in fetch order; albums without a title are left out.
Owner<NSMutableArray> regularAlbumTitles(PHFetchOptions options);

// The newest photo by creation date that is not hidden, or nil. Videos do not count.
PHAsset newestPhoto(PHFetchOptions options);
PHAsset newestPhoto();

} // namespace rollkeeper
