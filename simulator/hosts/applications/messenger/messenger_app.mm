#include "hosts/applications/messenger/messenger_app.h"

#include "hosts/applications/common/screen.h"
#include "hosts/host.h"

@implementation MNPhotosAlbumDataSource

- (void)dealloc {
    [_albums release];
    [super dealloc];
}

- (NSInteger)numberOfAlbums {
    if (_albums == nil) _albums = [simulator::albumsByType() retain];
    return static_cast<NSInteger>([_albums count]);
}

- (id)albumAtIndex:(NSInteger)index {
    const bool exists = index >= 0 && index < [self numberOfAlbums];
    return exists ? [_albums objectAtIndex:static_cast<NSUInteger>(index)] : nil;
}

@end

@implementation MNMontageAlbumCell

@synthesize asset = _asset;

- (void)dealloc {
    [_asset release];
    [super dealloc];
}

@end

@implementation MNMontageAlbumListViewController

@synthesize chosenAlbum = _chosenAlbum;

- (void)dealloc {
    [_chosenAlbum release];
    [super dealloc];
}

- (NSArray*)fetchCollections {
    return simulator::albumsByType();
}

- (id)_albumAtIndexPath:(NSIndexPath*)path {
    const auto row = static_cast<NSUInteger>([path row]);
    return path != nil && row < [_collections count] ? [_collections objectAtIndex:row] : nil;
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path {
    MNMontageAlbumCell* cell = [table dequeueReusableCellWithIdentifier:@"montage"];
    if (cell == nil)
        cell = [[[MNMontageAlbumCell alloc] initWithStyle:UITableViewCellStyleSubtitle
                                          reuseIdentifier:@"montage"] autorelease];
    PHAssetCollection* album = [_collections objectAtIndex:static_cast<NSUInteger>([path row])];
    [[cell textLabel] setText:[album localizedTitle]];
    [cell setAsset:[[PHAsset fetchKeyAssetsInAssetCollection:album options:nil] firstObject]];
    return cell;
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path {
    [self setChosenAlbum:[self _albumAtIndexPath:path]];
}

@end

namespace simulator::messenger {

MNMontageAlbumListViewController* montage() { return onScreen<MNMontageAlbumListViewController>(); }

nlohmann::json listComposer() {
    MNPhotosAlbumDataSource* source = [[[MNPhotosAlbumDataSource alloc] init] autorelease];
    auto rows = nlohmann::json::array();
    for (NSInteger index = 0; index < [source numberOfAlbums]; ++index) {
        PHAssetCollection* album = [source albumAtIndex:index];
        PHFetchResult* assets = [PHAsset fetchAssetsInAssetCollection:album options:nil];
        rows.push_back(album != nil ? describeCollection(album, assets) : nlohmann::json());
    }
    return rows;
}

nlohmann::json listMontage() {
    MNMontageAlbumListViewController* list = montage();
    [list reload];
    auto rows = nlohmann::json::array();
    for (NSInteger row = 0; row < [list tableView:[list table] numberOfRowsInSection:0]; ++row) {
        NSIndexPath* path = [NSIndexPath indexPathForRow:row inSection:0];
        auto cell = static_cast<MNMontageAlbumCell*>([list tableView:[list table]
                                               cellForRowAtIndexPath:path]);
        PHAsset* preview = [cell asset];
        [list tableView:[list table] didSelectRowAtIndexPath:path];
        rows.push_back(
            {{"title", text([[cell textLabel] text])},
             {"preview", preview != nil ? nlohmann::json(text([preview localIdentifier])) : nlohmann::json()},
             {"opens", [list chosenAlbum] != nil}});
    }
    return rows;
}

void addVerbs() { registerVerb("listPicker", listComposer); }

} // namespace simulator::messenger
