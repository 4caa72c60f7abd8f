#import "hosts/applications/messenger/Messenger.h"

#include "hosts/applications/common/launch.h"

namespace {

NSString* const cellIdentifier = @"album";
constexpr PHAssetCollectionType listedTypes[] = {PHAssetCollectionTypeSmartAlbum, PHAssetCollectionTypeAlbum};

NSArray* fetchAlbums() {
    NSMutableArray* albums = [NSMutableArray array];
    for (auto type : listedTypes)
        for (PHAssetCollection* album in
             [PHAssetCollection fetchAssetCollectionsWithType:type
                                                      subtype:PHAssetCollectionSubtypeAny
                                                      options:nil])
            [albums addObject:album];
    return albums;
}

} // namespace

@implementation MNPhotosAlbumDataSource

- (void)dealloc {
    [_albums release];
    [super dealloc];
}

- (void)reload {
    NSArray* albums = [fetchAlbums() copy];
    [_albums release];
    _albums = albums;
}

- (NSInteger)numberOfAlbums {
    if (_albums == nil) [self reload];
    return static_cast<NSInteger>([_albums count]);
}

- (id)albumAtIndex:(NSInteger)index {
    return index >= 0 && index < [self numberOfAlbums]
               ? [_albums objectAtIndex:static_cast<NSUInteger>(index)]
               : nil;
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

- (instancetype)initWithDataSource:(MNPhotosAlbumDataSource*)dataSource {
    self = [super init];
    if (!self) return nil;
    _dataSource = [dataSource retain];
    [self setTitle:@"Albums"];
    return self;
}

- (void)dealloc {
    [_table setDataSource:nil];
    [_table setDelegate:nil];
    [_table release];
    [_dataSource release];
    [_albums release];
    [_chosenAlbum release];
    [super dealloc];
}

- (UITableView*)table {
    return _table;
}

- (PHAssetCollection*)chosenAlbum {
    return _chosenAlbum;
}

- (void)viewDidLoad {
    [super viewDidLoad];
    _table = [[UITableView alloc] initWithFrame:[[self view] bounds] style:UITableViewStylePlain];
    [_table setDataSource:self];
    [_table setDelegate:self];
    [[self view] addSubview:_table];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    [_dataSource reload];
    [_albums release];
    _albums = [fetchAlbums() copy];
    [_table reloadData];
}

- (id)_albumAtIndexPath:(NSIndexPath*)path {
    NSUInteger row = static_cast<NSUInteger>([path row]);
    return path != nil && row < [_albums count] ? [_albums objectAtIndex:row] : nil;
}

- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section {
    return static_cast<NSInteger>([_albums count]);
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path {
    MNMontageAlbumCell* cell = [table dequeueReusableCellWithIdentifier:cellIdentifier];
    if (cell == nil)
        cell = [[[MNMontageAlbumCell alloc] initWithStyle:UITableViewCellStyleSubtitle
                                          reuseIdentifier:cellIdentifier] autorelease];
    PHAssetCollection* album = [_albums objectAtIndex:static_cast<NSUInteger>([path row])];
    [[cell textLabel] setText:[album localizedTitle]];
    [cell setAsset:[[PHAsset fetchKeyAssetsInAssetCollection:album options:nil] firstObject]];
    return cell;
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path {
    [table deselectRowAtIndexPath:path animated:NO];
    PHAssetCollection* chosen = [[self _albumAtIndexPath:path] retain];
    [_chosenAlbum release];
    _chosenAlbum = chosen;
}

@end

@implementation MessengerApplication

- (void)dealloc {
    [_dataSource release];
    [_montage release];
    [_window release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    _dataSource = [[MNPhotosAlbumDataSource alloc] init];
    _montage = [[MNMontageAlbumListViewController alloc] initWithDataSource:_dataSource];
    _window = simulator::showRootViewController(
        [[[UINavigationController alloc] initWithRootViewController:_montage] autorelease]);
}

- (MNPhotosAlbumDataSource*)photosAlbumDataSource {
    return _dataSource;
}

- (MNMontageAlbumListViewController*)montageAlbumList {
    return _montage;
}

@end
