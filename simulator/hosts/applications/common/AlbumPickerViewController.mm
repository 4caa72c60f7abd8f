#import "hosts/applications/common/AlbumPickerViewController.h"

#import "PhotosUI/ScreenHelpers.h"

#include "hosts/applications/common/screen.h"

namespace {

NSString* const cellIdentifier = @"album";

} // namespace

@implementation AlbumPickerViewController

@synthesize collections = _collections, table = _table;

- (void)dealloc {
    [_table setDataSource:nil];
    [_table setDelegate:nil];
    [_table release];
    [_collections release];
    [super dealloc];
}

- (NSArray*)fetchCollections {
    return simulator::rootCollections();
}

- (PHFetchOptions*)fetchOptions {
    return nil;
}

- (PHFetchResult*)fetchAssetsInCollection:(PHCollection*)collection {
    if (![collection isKindOfClass:[PHAssetCollection class]]) return nil;
    return [PHAsset fetchAssetsInAssetCollection:static_cast<PHAssetCollection*>(collection)
                                         options:[self fetchOptions]];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    _table = [[UITableView alloc] initWithFrame:[[self view] bounds] style:UITableViewStylePlain];
    [_table setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [_table setDataSource:self];
    [_table setDelegate:self];
    [[self view] addSubview:_table];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [self reload];
}

- (void)reload {
    NSArray* collections = [[self fetchCollections] copy];
    [_collections release];
    _collections = collections;
    [_table reloadData];
}

- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section {
    return static_cast<NSInteger>([_collections count]);
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path {
    UITableViewCell* cell = [table dequeueReusableCellWithIdentifier:cellIdentifier];
    if (cell == nil)
        cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleValue1
                                       reuseIdentifier:cellIdentifier] autorelease];
    PHCollection* collection = [_collections objectAtIndex:static_cast<NSUInteger>([path row])];
    [[cell textLabel] setText:[collection localizedTitle]];
    PHFetchResult* assets = [self fetchAssetsInCollection:collection];
    if (assets != nil) [[cell detailTextLabel] setText:[NSString stringWithFormat:@"%lu", [assets count]]];
    return cell;
}

@end

@implementation WAAlbumPickerViewController

- (NSArray*)fetchCollections {
    return simulator::albumsByType();
}

@end

@implementation IMGAlbumPickerViewController

- (NSArray*)fetchCollections {
    NSArray* cameraRoll = simulator::albumsOfType(PHAssetCollectionTypeSmartAlbum,
                                                  PHAssetCollectionSubtypeSmartAlbumUserLibrary);
    return [cameraRoll arrayByAddingObjectsFromArray:simulator::albumsOfType(PHAssetCollectionTypeAlbum)];
}

- (PHFetchOptions*)fetchOptions {
    PHFetchOptions* newestFirst = [[[PHFetchOptions alloc] init] autorelease];
    [newestFirst setSortDescriptors:@[ [NSSortDescriptor sortDescriptorWithKey:@"creationDate"
                                                                     ascending:NO] ]];
    return newestFirst;
}

@end

namespace simulator {

NSArray* albumsOfType(PHAssetCollectionType type, PHAssetCollectionSubtype subtype) {
    NSMutableArray* albums = [NSMutableArray array];
    for (PHAssetCollection* album in [PHAssetCollection fetchAssetCollectionsWithType:type
                                                                              subtype:subtype
                                                                              options:nil])
        [albums addObject:album];
    return albums;
}

NSArray* albumsByType() {
    return [albumsOfType(PHAssetCollectionTypeSmartAlbum)
        arrayByAddingObjectsFromArray:albumsOfType(PHAssetCollectionTypeAlbum)];
}

nlohmann::json describeCollection(PHCollection* collection, PHFetchResult* assets) {
    NSString* title = [collection localizedTitle];
    nlohmann::json row{{"title", title != nil ? nlohmann::json(text(title)) : nlohmann::json()}};
    if (![collection isKindOfClass:[PHAssetCollection class]]) {
        row["kind"] = "folder";
        return row;
    }
    auto album = static_cast<PHAssetCollection*>(collection);
    row["kind"] = [album assetCollectionType] == PHAssetCollectionTypeAlbum ? "album" : "smartAlbum";
    row["photos"] = nlohmann::json::array();
    for (PHAsset* asset in assets)
        row["photos"].push_back(text([asset localIdentifier]));
    return row;
}

nlohmann::json describePicker(AlbumPickerViewController* picker) {
    [picker reload];
    auto rows = nlohmann::json::array();
    for (PHCollection* collection in [picker collections])
        rows.push_back(describeCollection(collection, [picker fetchAssetsInCollection:collection]));
    return rows;
}

nlohmann::json describePickerOnScreen() { return describePicker(onScreen<AlbumPickerViewController>()); }

} // namespace simulator
