#import "hosts/applications/imgur/Imgur.h"

#include "hosts/applications/common/launch.h"

namespace {

constexpr struct {
    PHAssetCollectionType type;
    PHAssetCollectionSubtype subtype;
} listed[] = {
    {PHAssetCollectionTypeSmartAlbum, PHAssetCollectionSubtypeSmartAlbumUserLibrary},
    {PHAssetCollectionTypeAlbum, PHAssetCollectionSubtypeAny},
};

} // namespace

@implementation IMGAlbumPickerViewController

- (NSArray*)fetchCollections {
    NSMutableArray* collections = [NSMutableArray array];
    for (auto kind : listed)
        for (PHAssetCollection* collection in [PHAssetCollection fetchAssetCollectionsWithType:kind.type
                                                                                       subtype:kind.subtype
                                                                                       options:nil])
            [collections addObject:collection];
    return collections;
}

- (PHFetchResult*)fetchAssetsInCollection:(PHAssetCollection*)collection {
    PHFetchOptions* newestFirst = [[[PHFetchOptions alloc] init] autorelease];
    [newestFirst setSortDescriptors:@[ [NSSortDescriptor sortDescriptorWithKey:@"creationDate"
                                                                     ascending:NO] ]];
    return [PHAsset fetchAssetsInAssetCollection:collection options:newestFirst];
}

@end

@implementation ImgurApplication

- (void)dealloc {
    [_window release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    UIViewController* picker = [[[IMGAlbumPickerViewController alloc] init] autorelease];
    [picker setTitle:@"Upload"];
    _window = simulator::showRootViewController(
        [[[UINavigationController alloc] initWithRootViewController:picker] autorelease]);
}

@end
