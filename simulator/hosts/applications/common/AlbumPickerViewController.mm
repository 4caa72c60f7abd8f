#import "hosts/applications/common/AlbumPickerViewController.h"

#import "PhotosUI/PURootCollections.h"

#include "hosts/applications/common/screen.h"

namespace {

NSString* const cellIdentifier = @"album";

nlohmann::json identifiersOf(PHFetchResult* assets) {
    auto identifiers = nlohmann::json::array();
    for (PHAsset* asset in assets)
        identifiers.push_back(simulator::text([asset localIdentifier]));
    return identifiers;
}

const char* kindOf(PHAssetCollection* collection) {
    switch ([collection assetCollectionType]) {
    case PHAssetCollectionTypeAlbum:
        return "album";
    case PHAssetCollectionTypeSmartAlbum:
        return "smartAlbum";
    case PHAssetCollectionTypeMoment:
        return "moment";
    }
    return "unknown";
}

nlohmann::json titleOf(PHCollection* collection) {
    NSString* title = [collection localizedTitle];
    return title ? nlohmann::json(simulator::text(title)) : nlohmann::json();
}

} // namespace

@implementation AlbumPickerViewController

- (void)dealloc {
    [_table setDataSource:nil];
    [_table setDelegate:nil];
    [_table release];
    [_collections release];
    [super dealloc];
}

- (NSArray*)fetchCollections {
    return PURootCollections();
}

- (PHFetchResult*)fetchAssetsInCollection:(PHAssetCollection*)collection {
    return [PHAsset fetchAssetsInAssetCollection:collection options:nil];
}

- (NSArray*)collections {
    return _collections;
}

- (UITableView*)table {
    return _table;
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
    NSString* count = nil;
    if ([collection isKindOfClass:[PHAssetCollection class]])
        count =
            [NSString stringWithFormat:@"%lu", [[self fetchAssetsInCollection:static_cast<PHAssetCollection*>(
                                                                                  collection)] count]];
    [[cell detailTextLabel] setText:count];
    return cell;
}

@end

namespace simulator {

nlohmann::json describeCollections(NSArray* collections,
                                   PHFetchResult* (^assets)(PHAssetCollection* collection)) {
    auto rows = nlohmann::json::array();
    for (PHCollection* collection in collections) {
        nlohmann::json row{{"title", titleOf(collection)}};
        if ([collection isKindOfClass:[PHAssetCollection class]]) {
            auto album = static_cast<PHAssetCollection*>(collection);
            row["kind"] = kindOf(album);
            row["photos"] = identifiersOf(assets(album));
        } else {
            row["kind"] = "folder";
            row["collections"] =
                describeCollections([static_cast<PHCollectionList*>(collection) collections], assets);
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

nlohmann::json describePicker(AlbumPickerViewController* picker) {
    [picker reload];
    return describeCollections([picker collections], ^(PHAssetCollection* collection) {
        return [picker fetchAssetsInCollection:collection];
    });
}

} // namespace simulator
