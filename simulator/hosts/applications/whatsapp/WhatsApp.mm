#import "hosts/applications/whatsapp/WhatsApp.h"

#include "hosts/applications/common/launch.h"

namespace {
constexpr PHAssetCollectionType listedTypes[] = {PHAssetCollectionTypeSmartAlbum, PHAssetCollectionTypeAlbum};
}

@implementation WAAlbumPickerViewController

- (NSArray*)fetchCollections {
    NSMutableArray* collections = [NSMutableArray array];
    for (auto type : listedTypes)
        for (PHAssetCollection* collection in
             [PHAssetCollection fetchAssetCollectionsWithType:type
                                                      subtype:PHAssetCollectionSubtypeAny
                                                      options:nil])
            [collections addObject:collection];
    return collections;
}

@end

@implementation WhatsAppApplication

- (void)dealloc {
    [_window release];
    [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
    UIViewController* picker = [[[WAAlbumPickerViewController alloc] init] autorelease];
    [picker setTitle:@"Photos"];
    _window = simulator::showRootViewController(
        [[[UINavigationController alloc] initWithRootViewController:picker] autorelease]);
}

@end
