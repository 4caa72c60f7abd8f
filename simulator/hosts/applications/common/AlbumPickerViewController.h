#pragma once

#import "Photos/Photos.h"
#import "UIKit/UIKit.h"

#include <nlohmann/json.hpp>

/// A photo picker's table of albums, as many applications have one; subclasses say how they come by albums
/// and photos.
@interface AlbumPickerViewController : UIViewController <UITableViewDataSource, UITableViewDelegate> {
    UITableView* _table;
    NSArray* _collections;
}
/// The albums and folders (PHCollection) to list; those of the system's own picker unless a subclass says
/// otherwise.
- (NSArray*)fetchCollections;
/// nil unless a subclass says otherwise.
- (PHFetchOptions*)fetchOptions;
/// nil for a folder.
- (PHFetchResult*)fetchAssetsInCollection:(PHCollection*)collection;
@property (nonatomic, readonly) NSArray* collections;
@property (nonatomic, readonly) UITableView* table;
/// Reads the albums anew.
- (void)reload;
@end

/// WhatsApp's: lists smart albums, then albums, by kind.
@interface WAAlbumPickerViewController : AlbumPickerViewController
@end

/// imgur's: lists the library and the user's albums, with the photos of each, newest first.
@interface IMGAlbumPickerViewController : AlbumPickerViewController
@end

namespace simulator {

/// The albums of a kind (PHAssetCollection).
NSArray* albumsOfType(PHAssetCollectionType type,
                      PHAssetCollectionSubtype subtype = PHAssetCollectionSubtypeAny);
/// All smart albums, then all albums.
NSArray* albumsByType();

/// A row of a picker: {"title": "Holidays", "kind": "album", "photos": [identifiers]}; a folder has no
/// photos. Titles may be null.
nlohmann::json describeCollection(PHCollection* collection, PHFetchResult* assets);
/// What the picker shows, from top to bottom.
nlohmann::json describePicker(AlbumPickerViewController* picker);
/// The same for the picker on the screen; throws std::runtime_error when there is none.
nlohmann::json describePickerOnScreen();

} // namespace simulator
