// What the album list and the Albums screen know of albums. Main thread.
#pragma once

#import "Photos/Photos.h"
#import "PhotosUI/PUAlbumListCell.h"

namespace simulator {

/// nil for a folder, and for the row of people.
PHAssetCollection* albumOf(PHCollection* collection);
bool hasSubtype(PHCollection* collection, PHAssetCollectionSubtype subtype);
bool isUserAlbum(PHCollection* collection);
/// Stock albums appear once they hold something; the library itself is always there.
bool isShown(PHCollection* collection);
/// Of photos in an album, of collections in a folder.
NSUInteger countIn(PHCollection* collection);
/// nil for an album without photos, which shows a symbol instead.
UIImage* coverOf(PHCollection* collection, CGFloat side);
/// The screen that shows what is in the album.
UIViewController* contentsOf(PHAssetCollection* album);

} // namespace simulator
