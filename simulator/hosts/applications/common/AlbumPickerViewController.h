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
- (PHFetchResult*)fetchAssetsInCollection:(PHAssetCollection*)collection;
- (NSArray*)collections;
- (UITableView*)table;
/// Reads the albums anew.
- (void)reload;
@end

namespace simulator {

/// What the picker shows, from top to bottom: [{"title": "Holidays", "kind": "album", "photos":
/// [identifiers]}]; a folder has "collections" in place of photos. Titles may be null.
nlohmann::json describePicker(AlbumPickerViewController* picker);

/// The same for a list of collections and a way to come by their photos.
nlohmann::json describeCollections(NSArray* collections,
                                   PHFetchResult* (^assets)(PHAssetCollection* collection));

} // namespace simulator
