// Changes of the library: when the blocks run, what is applied, what is refused.
#import "simulator/photos/photos_fixture.h"

#include <future>

namespace simulator::test {

using testing::ElementsAre;
using Request = PHAssetCollectionChangeRequest;

TEST_F(Photos, change_is_block_then_transaction_then_handler_then_the_next_change) {
    __block std::vector<std::string> journal;
    __block std::promise<void> end;
    void (^note)(std::string) = ^(std::string what) {
        if ([NSThread isMainThread]) what += " on the main thread";
        journal.push_back(what + (library().albumTitled("New") ? ", applied" : ""));
    };
    PHPhotoLibrary* photos = [PHPhotoLibrary sharedPhotoLibrary];
    [photos
        performChanges:^{
            [Request creationRequestForAssetCollectionWithTitle:@"New"];
            note("block");
        }
        completionHandler:^(BOOL success, NSError* error) {
            note(success && error == nil ? "handler" : "failure");
        }];
    [photos
           performChanges:^{
               note("next");
               end.set_value();
           }
        completionHandler:nil];
    end.get_future().wait();
    EXPECT_THAT(journal, ElementsAre("block", "handler, applied", "next, applied"));
}

TEST_F(Photos, requests_take_effect_together) {
    ASSERT_TRUE(changeLibrary(^{
        Request* request = [Request creationRequestForAssetCollectionWithTitle:@"New"];
        [request addAssets:@[ asset(8), asset(1), asset(0) ]];
        [request addAssets:@[ asset(8), asset(9) ]];
        [request removeAssets:[NSSet setWithObjects:asset(1), asset(2), nil]];
        EXPECT_FALSE([Request changeRequestForAssetCollection:smartAlbum(cameraRoll)]) << "not editable";
        [Request deleteAssetCollections:@[ album(@"Family"), album(@"Pets") ]];
        [[PHAssetChangeRequest changeRequestForAsset:asset(0)] setHidden:YES];
        [PHAssetChangeRequest deleteAssets:@[ asset(2), asset(3) ]];
    }));
    EXPECT_EQ([collections(PHAssetCollectionTypeAlbum) count], 3u);
    EXPECT_EQ(numbersIn(album(@"New")), (Numbers{8, 9}));
    EXPECT_EQ(numbersIn(album(@"Holidays")), Numbers{1});
    ASSERT_TRUE(changeLibrary(^{
        PHFetchResult* trash = [PHAsset fetchAssetsInAssetCollection:smartAlbum(trashBin) options:nil];
        [PHAssetChangeRequest undeleteAssets:@[ [trash firstObject] ]];
        [PHAssetChangeRequest deleteAssets:@[ [trash lastObject] ]];
        [[PHAssetChangeRequest changeRequestForAsset:asset(0)] setHidden:NO];
    }));
    EXPECT_EQ(numbersIn(album(@"New")), (Numbers{8, 0, 9}));
    EXPECT_EQ(numbersIn(album(@"Holidays")), (Numbers{0, 1, 2}));
    EXPECT_FALSE(library().asset(photo(3)));
}

TEST_F(Photos, requests_outside_their_change_block_raise) {
    static Request* kept = nil; // blocks and functions share it
    ASSERT_TRUE(changeLibrary(^{
        kept = [[Request changeRequestForAssetCollection:album(@"Work")] retain];
        EXPECT_EQ(exceptionOf([] { [kept addAssets:@[ @"text" ]]; }), "NSInvalidArgumentException");
    }));
    const std::function<void()> addingToKept = [] { [kept addAssets:@[]]; };
    const std::function<void()> requests[] = {
        [] { [Request creationRequestForAssetCollectionWithTitle:@"New"]; },
        [] { [Request changeRequestForAssetCollection:album(@"Work") assets:nil]; },
        [&] { [PHAssetChangeRequest changeRequestForAsset:asset(0)]; },
        [] { [PHAssetChangeRequest deleteAssets:@[]]; },
        addingToKept,
    };
    for (const auto& request : requests)
        EXPECT_EQ(exceptionOf(request), "NSInternalInconsistencyException") << &request - requests;
    changeLibrary(^{
        EXPECT_EQ(exceptionOf(addingToKept), "NSInternalInconsistencyException") << "another block";
    });
    [kept release];
}

TEST_F(Photos, change_that_fails_applies_nothing) {
    PHAssetCollection* work = album(@"Work");
    for (const bool refused : {true, false}) {
        change([=](Conditions& conditions) { conditions.faults.refuseLibraryChanges = refused; });
        if (!refused) // then what it asks for is not there
            changeLibrary(^{
                [Request deleteAssetCollections:@[ work ]];
            });
        EXPECT_FALSE(changeLibrary(^{
            [Request creationRequestForAssetCollectionWithTitle:@"New"];
            [[PHAssetChangeRequest changeRequestForAsset:asset(0)] setHidden:YES];
            [[Request changeRequestForAssetCollection:work] addAssets:@[ asset(0) ]];
        }));
        EXPECT_FALSE(library().albumTitled("New"));
        EXPECT_FALSE(library().asset(photo(0))->hidden);
    }
}

} // namespace simulator::test
