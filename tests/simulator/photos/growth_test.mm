// Nothing stays behind: fetches, changes and image requests run thousands of times in the life of a process.
#import "simulator/photos/photos_test.h"

#import <Foundation/NSDebug.h>

#import "UIKit/UIKit.h"

namespace simulator::test {

namespace {

class GrowthTest : public PhotosTest {};

/// How many objects of the framework's classes there are.
std::vector<int> livingObjects() {
    std::vector<int> counts;
    for (Class counted in @[
             [PHAsset class], [PHAssetCollection class], [PHCollectionList class], [PHFetchResult class],
             [PHFetchOptions class], [PHObjectPlaceholder class], [PHAssetCollectionChangeRequest class],
             [PHAssetChangeRequest class], [PHImageRequestOptions class], [UIImage class]
         ])
        counts.push_back(GSDebugAllocationCount(counted));
    return counts;
}

} // namespace

TEST_F(GrowthTest, NoObjectOutlivesItsUse) {
    const struct {
        const char* what;
        void (^work)(void);
    } cases[] = {{"assets", ^{
                      numbers([PHAsset fetchAssetsWithOptions:sortedBy(@"creationDate", YES)]);
}
} // namespace simulator::test
, {"an album by title", ^{
       album("Family");
}
}
, {"assets by predicate", ^{
       [PHAsset fetchAssetsWithOptions:matching(@"mediaType = %@", @2)];
}
}
, {"titles", ^{
       titles([PHCollection fetchTopLevelUserCollectionsWithOptions:nil]);
}
}
, {"objects", ^{
       [[[PHAsset fetchAssetsWithOptions:nil] fetchedObjects] lastObject];
}
}
, {"a transient collection", ^{
       PHAssetCollection* made = [PHAssetCollection transientAssetCollectionWithAssets:@[ asset(0) ]
                                                                                 title:@"T"];
[[PHCollectionList transientCollectionListWithCollections:@[ made ] title:nil] collections];
}
}
, {"a raised exception", ^{
       exceptionOf(^{
           [PHAsset fetchAssetsWithOptions:sortedBy(@"x", YES)];
       });
}
}
, {"a change", ^{
       changeLibrary(^{
           PHAssetCollection* family = album("Family");
           id request = [PHAssetCollectionChangeRequest changeRequestForAssetCollection:family assets:nil];
           [request removeAssets:@[ asset(2) ]];
           [request addAssets:@[ asset(2) ]];
           [[PHAssetChangeRequest changeRequestForAsset:asset(2)] setFavorite:YES];
       });
}
}
, {"a request that raises", ^{
       exceptionOf(^{
           [PHAssetCollectionChangeRequest creationRequestForAssetCollectionWithTitle:@"x"];
       });
}
}
, {"an image", ^{
       PHImageRequestOptions* options = [[[PHImageRequestOptions alloc] init] autorelease];
options.synchronous = YES;
[[PHImageManager defaultManager] requestImageForAsset:asset(0)
                                           targetSize:CGSizeMake(5, 5)
                                          contentMode:PHImageContentModeAspectFit
                                              options:options
                                        resultHandler:^(UIImage*, NSDictionary*){
                                        }];
}
}
,
}
;
GSDebugAllocationActive(YES);
{
    // The counter works.
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    const std::vector<int> before = livingObjects();
    [[[PHFetchOptions alloc] init] autorelease];
    EXPECT_NE(livingObjects(), before);
    [pool drain];
    EXPECT_EQ(livingObjects(), before);
}
for (const auto& [what, work] : cases) {
    const std::vector<int> before = livingObjects();
    for (int round = 0; round < 20; ++round) {
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        work();
        [pool drain];
    }
    EXPECT_EQ(livingObjects(), before) << what;
}
}

} // namespace simulator::test
