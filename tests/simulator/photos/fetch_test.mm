// What fetches return: the rules for hidden and deleted assets, order, snapshots, pictures.
#import "simulator/photos/photos_fixture.h"

#import "UIKit/UIKit.h"

namespace simulator::test {

TEST_F(Photos, hidden_assets_are_left_out_unless_the_options_include_them) {
    library().setHidden(photo(2), true);
    PHAssetCollection* moment = [collections(PHAssetCollectionTypeMoment) objectAtIndex:2];
    PHAssetCollection* transient =
        [PHAssetCollection transientAssetCollectionWithAssets:@[ asset(2), asset(1) ] title:nil];
    const Numbers all{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    const Numbers visible{0, 1, 3, 4, 5, 6, 7, 8, 9};
    const struct {
        const char* what;
        PHAssetCollection* collection;
        Numbers without, with, key;
    } cases[] = {
        {"album", album(@"Family"), {3, 4, 5}, {2, 3, 4, 5}, {2, 3, 4}},
        {"Camera Roll", smartAlbum(cameraRoll), visible, all, {9, 8, 7}},
        {"moment", moment, {}, {2}, {2}},
        {"transient collection", transient, {1}, {2, 1}, {2, 1}},
        {"hidden assets", smartAlbum(hiddenAlbum), {2}, {2}, {2}},
        {"empty album", album(@"Pets"), {}, {}, {}},
        {"nothing", nil, {}, {}, {}},
    };
    PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
    for (const auto& each : cases) {
        options.includeHiddenAssets = NO;
        EXPECT_EQ(numbersIn(each.collection), each.without) << each.what;
        EXPECT_EQ(numbersIn(each.collection, options), each.without) << each.what;
        options.includeHiddenAssets = YES;
        EXPECT_EQ(numbersIn(each.collection, options), each.with) << each.what;
        PHFetchResult* key = [PHAsset fetchKeyAssetsInAssetCollection:each.collection options:options];
        EXPECT_EQ(numbers(key), each.key) << each.what;
    }
    EXPECT_EQ([[PHAsset fetchAssetsWithMediaType:PHAssetMediaTypeImage options:nil] count], 8u);
}

TEST_F(Photos, assets_in_the_trash_are_in_the_trash_bin_only) {
    library().setTrashed(photo(2), true);
    library().setHidden(photo(2), true);
    EXPECT_EQ(numbersIn(smartAlbum(trashBin)), Numbers{2});
    EXPECT_EQ(numbersIn(album(@"Holidays")), (Numbers{0, 1}));
    EXPECT_EQ(numbersIn(smartAlbum(hiddenAlbum)), Numbers{});
}

TEST_F(Photos, results_are_snapshots) {
    PHFetchResult* members = [PHAsset fetchAssetsInAssetCollection:album(@"Holidays") options:nil];
    PHFetchResult* albums = collections(PHAssetCollectionTypeAlbum);
    library().setHidden(photo(0), true);
    library().setTrashed(photo(1), true);
    library().addAlbum("New");
    EXPECT_EQ(numbers(members), (Numbers{0, 1, 2}));
    EXPECT_FALSE([[members firstObject] isHidden]);
    EXPECT_EQ([albums count], 4u);
    EXPECT_EQ(numbersIn(album(@"Holidays")), Numbers{2});
    EXPECT_EQ([collections(PHAssetCollectionTypeAlbum) count], 5u);
}

TEST_F(Photos, newest_by_date_wins_however_late_an_asset_was_added) {
    library().addAsset({.created = 1.0});
    library().addAsset({});
    PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
    for (const BOOL ascending : {NO, YES}) {
        options.sortDescriptors = @[ [NSSortDescriptor sortDescriptorWithKey:@"creationDate"
                                                                   ascending:ascending] ];
        PHFetchResult* found = [PHAsset fetchAssetsWithMediaType:PHAssetMediaTypeImage options:options];
        EXPECT_TRUE([asset(9) isEqual:ascending ? [found lastObject] : [found firstObject]]);
    }
    options.sortDescriptors = @[ [NSSortDescriptor sortDescriptorWithKey:@"colour" ascending:YES] ];
    EXPECT_EQ(exceptionOf([=] { [PHAsset fetchAssetsWithOptions:options]; }), "NSInvalidArgumentException");
}

TEST_F(Photos, pictures_come_once_on_the_main_thread_in_the_assets_shape) {
    PHImageRequestOptions* options = [[[PHImageRequestOptions alloc] init] autorelease];
    for (const BOOL synchronous : {YES, NO}) {
        options.synchronous = synchronous;
        __block UIImage* picture = nil;
        __block int calls = 0;
        void (^handler)(UIImage*, NSDictionary*) = ^(UIImage* image, NSDictionary*) {
            picture = [image retain];
            calls += [NSThread isMainThread] ? 1 : 100;
        };
        [[PHImageManager defaultManager] requestImageForAsset:asset(0)
                                                   targetSize:CGSizeMake(175, 175)
                                                  contentMode:PHImageContentModeAspectFit
                                                      options:options
                                                resultHandler:handler];
        EXPECT_EQ(calls, synchronous ? 1 : 0);
        while (calls == 0)
            [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                     beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
        EXPECT_EQ(calls, 1);
        EXPECT_TRUE(CGSizeEqualToSize([picture size], CGSizeMake(175, 131)));
        EXPECT_EQ([picture retainCount], 1u) << "kept by the handler alone";
        [picture release];
    }
}

} // namespace simulator::test
