// The methods of the Photos framework, and of three outside applications' album pickers, that are replaced.
//
// They run in every process, on any thread.
#pragma once

#include "platform/photos.h"
#include "platform/uikit.h"

namespace rollkeeper {

namespace filtering {

NSArray collections(NSObject self, SEL command);
NSArray fetchedObjects(PHFetchResult self, SEL command);
NSObject fetchedObjectIDsSet(PHFetchResult self, SEL command);
PHFetchResult fetchAssetsInCollection(NSObject self, SEL command, PHObject collection,
                                      PHFetchOptions options);
PHFetchResult fetchKeyAssets(NSObject self, SEL command, PHObject collection, PHFetchOptions options);
PHFetchResult fetchAssetCollections(NSObject self, SEL command, PHAssetCollectionType type,
                                    PHAssetCollectionSubtype subtype, PHFetchOptions options);

} // namespace filtering

namespace outsidePickers {

NSObject messengerAlbumAtIndex(NSObject self, SEL command, NSInteger index);
NSObject messengerAlbumAtIndexPath(NSObject self, SEL command, NSIndexPath path);
UITableViewCell messengerCellForRow(NSObject self, SEL command, UIView table, NSIndexPath path);
PHFetchResult whatsAppFetchAssetCollections(NSObject self, SEL command, PHAssetCollectionType type,
                                            PHAssetCollectionSubtype subtype, PHFetchOptions options);
PHFetchResult imgurFetchAssetsInCollection(NSObject self, SEL command, PHObject collection,
                                           PHFetchOptions options);

} // namespace outsidePickers

} // namespace rollkeeper
