// Changes of the library: when the blocks run, what is applied, what is refused.
#import "simulator/photos/photos_test.h"

#include <gmock/gmock.h>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace simulator::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using Numbers = std::vector<int>;
using Creation = PHAssetCollectionChangeRequest;

class ChangeTest : public PhotosTest {
  protected:
    Numbers albumNumbers(const char* title) {
        return numbers([PHAsset fetchAssetsInAssetCollection:album(title) options:includingHidden()]);
    }
    Texts albumTitles() {
        return titles([PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                               subtype:PHAssetCollectionSubtypeAny
                                                               options:nil]);
    }
    void refuseChanges(bool refuse) {
        device().changeConditions(
            [=](Conditions& conditions) { conditions.faults.refuseLibraryChanges = refuse; });
    }
};

/// What several threads did, in order; can be waited for.
class Journal {
  public:
    void note(const char* what) {
        const std::lock_guard lock(m_mutex);
        m_entries.push_back(what);
        m_changed.notify_all();
    }
    Texts waitForEntries(std::size_t count) {
        std::unique_lock lock(m_mutex);
        m_changed.wait_for(lock, std::chrono::seconds(20), [&] { return m_entries.size() >= count; });
        return m_entries;
    }

  private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    Texts m_entries;
};

} // namespace

TEST_F(ChangeTest, BlockThenTransactionThenHandlerThenTheNextChange) {
    auto* journal = new Journal;
    const std::thread::id caller = std::this_thread::get_id();
    PHPhotoLibrary* photos = [PHPhotoLibrary sharedPhotoLibrary];
    PhotoLibrary* store = &library();
    for (int turn = 0; turn < 2; ++turn)
        [photos
            performChanges:^{
                journal->note(std::this_thread::get_id() == caller ? "block on the caller's thread"
                                                                   : "block");
                [Creation creationRequestForAssetCollectionWithTitle:@"New"];
                if (turn == 0 && store->albumTitled("New")) journal->note("applied before the block ended");
            }
            completionHandler:^(BOOL success, NSError* error) {
                journal->note(std::this_thread::get_id() == caller ? "handler on the caller's thread"
                                                                   : "handler");
                journal->note(success && !error && store->albumTitled("New") ? "applied" : "failed");
            }];
    EXPECT_THAT(journal->waitForEntries(6),
                ElementsAre("block", "handler", "applied", "block", "handler", "applied"));
    delete journal;
}

TEST_F(ChangeTest, HandlerMayBeMissingAndMayChangeAgain) {
    auto* journal = new Journal;
    PHPhotoLibrary* photos = [PHPhotoLibrary sharedPhotoLibrary];
    [photos
           performChanges:^{
               [Creation creationRequestForAssetCollectionWithTitle:@"First"];
           }
        completionHandler:nil];
    [photos
        performChanges:^{
            [Creation creationRequestForAssetCollectionWithTitle:@"Second"];
        }
        completionHandler:^(BOOL, NSError*) {
            [photos
                performChanges:^{
                    [Creation creationRequestForAssetCollectionWithTitle:@"Third"];
                }
                completionHandler:^(BOOL, NSError*) {
                    journal->note("done");
                }];
        }];
    journal->waitForEntries(1);
    EXPECT_THAT(albumTitles(), ElementsAre("Holidays", "Family", "Work", "Pets", "First", "Second", "Third"));
    delete journal;
}

TEST_F(ChangeTest, ChangeKeepsWhatItsBlockCaptures) {
    auto* journal = new Journal;
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSString* title = [NSMutableString stringWithString:@"Captured"];
    NSArray* assets = [NSArray arrayWithObject:asset(4)];
    [[PHPhotoLibrary sharedPhotoLibrary]
        performChanges:^{
            [[Creation creationRequestForAssetCollectionWithTitle:title] addAssets:assets];
        }
        completionHandler:^(BOOL, NSError*) {
            journal->note([title UTF8String]);
        }];
    [pool drain];
    EXPECT_THAT(journal->waitForEntries(1), ElementsAre("Captured"));
    EXPECT_EQ(albumNumbers("Captured"), Numbers{4});
    delete journal;
}

TEST_F(ChangeTest, PlaceholderNamesTheNewAlbum) {
    __block NSString* identifier = nil;
    ASSERT_TRUE(changeLibrary(^{
        Creation* request = [Creation creationRequestForAssetCollectionWithTitle:@"New"];
        identifier = [[[request placeholderForCreatedAssetCollection] localIdentifier] copy];
        [request addAssets:@[ asset(1), asset(0) ]];
    }));
    PHFetchResult* found =
        [PHAssetCollection fetchAssetCollectionsWithLocalIdentifiers:@[ [identifier autorelease] ]
                                                             options:nil];
    EXPECT_THAT(titles(found), ElementsAre("New"));
    EXPECT_EQ(albumNumbers("New"), (Numbers{1, 0}));
}

TEST_F(ChangeTest, MembersAreAddedInsertedAndRemoved) {
    const struct {
        const char* what;
        void (^request)(Creation*);
        Numbers members;
    } cases[] = {{"appended", ^(Creation* request){
                      [request addAssets:@[ asset(9), asset(8) ]];
}
, {2, 3, 4, 5, 9, 8}
} // namespace simulator::test
, {"there already", ^(Creation* request){
       [request addAssets:@[ asset(2) ]];
}
, {2, 3, 4, 5, 9, 8}
}
, {"in front", ^(Creation* request){
       [request insertAssets:@[ asset(0) ] atIndexes:[NSIndexSet indexSetWithIndex:0]];
}
, {0, 2, 3, 4, 5, 9, 8}
}
, {"in between", ^(Creation* request){
       [request insertAssets:@[ asset(6), asset(7) ]
                   atIndexes:[NSIndexSet indexSetWithIndexesInRange:{2, 2}]];
}
, {0, 2, 6, 7, 3, 4, 5, 9, 8}
}
, {"removed, any collection will do", ^(Creation* request){
       [request removeAssets:[NSSet setWithObjects:asset(2), asset(9), nil]];
}
, {0, 6, 7, 3, 4, 5, 8}
}
, {"removed, no member", ^(Creation* request){
       [request removeAssets:@[ asset(1) ]];
}
, {0, 6, 7, 3, 4, 5, 8}
}
, {"nothing", ^(Creation* request){
       [request addAssets:nil];
}
, {0, 6, 7, 3, 4, 5, 8}
}
,
}
;
for (const auto& change : cases) {
    ASSERT_TRUE(changeLibrary(^{
        PHAssetCollection* family = album("Family");
        PHFetchResult* assets = [PHAsset fetchAssetsInAssetCollection:family options:nil];
        change.request([Creation changeRequestForAssetCollection:family assets:assets]);
    })) << change.what;
    EXPECT_EQ(albumNumbers("Family"), change.members) << change.what;
}
}

TEST_F(ChangeTest, AlbumsAreRenamedAndDeleted) {
    ASSERT_TRUE(changeLibrary(^{
        [[Creation changeRequestForAssetCollection:album("Work")] setTitle:@"Play \U0001F3A8"];
        [Creation deleteAssetCollections:@[ album("Holidays"), album("Pets") ]];
    }));
    EXPECT_THAT(albumTitles(), ElementsAre("Family", "Play \xF0\x9F\x8E\xA8"));
    EXPECT_EQ(library().visibleAssets().size(), 10u);
}

TEST_F(ChangeTest, AssetsAreHiddenMarkedDeletedAndRestored) {
    ASSERT_TRUE(changeLibrary(^{
        [[PHAssetChangeRequest changeRequestForAsset:asset(0)] setHidden:YES];
        [[PHAssetChangeRequest changeRequestForAsset:asset(1)] setFavorite:YES];
        [PHAssetChangeRequest deleteAssets:@[ asset(2), asset(3) ]];
    }));
    EXPECT_TRUE(library().asset(photo(0))->hidden);
    EXPECT_TRUE(library().asset(photo(1))->favorite);
    EXPECT_TRUE(library().asset(photo(2))->trashed);
    EXPECT_EQ(albumNumbers("Holidays"), (Numbers{0, 1}));
    ASSERT_TRUE(changeLibrary(^{
        PHFetchResult* trash = [PHAsset fetchAssetsInAssetCollection:smartAlbum(1000000201) options:nil];
        [PHAssetChangeRequest undeleteAssets:@[ [trash firstObject] ]];
        [PHAssetChangeRequest deleteAssets:@[ [trash lastObject] ]];
        [[PHAssetChangeRequest changeRequestForAsset:asset(0)] setHidden:NO];
    }));
    EXPECT_EQ(albumNumbers("Holidays"), (Numbers{0, 1, 2}));
    EXPECT_FALSE(library().asset(photo(0))->hidden);
    EXPECT_FALSE(library().asset(photo(3)));
}

TEST_F(ChangeTest, RequestsOutsideAChangeBlockRaise) {
    __block Creation* kept = nil;
    ASSERT_TRUE(changeLibrary(^{
        kept = [[Creation changeRequestForAssetCollection:album("Work") assets:nil] retain];
    }));
    const struct {
        const char* what;
        void (^request)(void);
    } cases[] = {{"creation", ^{
                      [Creation creationRequestForAssetCollectionWithTitle:@"New"];
}
}
, {"change", ^{
       [Creation changeRequestForAssetCollection:album("Work") assets:nil];
}
}
, {"deletion", ^{
       [Creation deleteAssetCollections:@[]];
}
}
, {"asset", ^{
       [PHAssetChangeRequest changeRequestForAsset:asset(0)];
}
}
, {"deletion of assets", ^{
       [PHAssetChangeRequest deleteAssets:@[]];
}
}
, {"request of an earlier block", ^{
       [kept addAssets:@[]];
}
}
,
}
;
for (const auto& [what, request] : cases) {
    EXPECT_EQ(exceptionOf(request), "NSInternalInconsistencyException") << what;
}
ASSERT_TRUE(changeLibrary(^{
    EXPECT_EQ(exceptionOf(^{
                  [kept removeAssets:@[]];
              }),
              "NSInternalInconsistencyException")
        << "another block";
}));
[kept release];
}

TEST_F(ChangeTest, OnlyRegularAlbumsGiveRequests) {
    PHAssetCollection* transient = [PHAssetCollection transientAssetCollectionWithAssets:@[] title:@"T"];
    ASSERT_TRUE(changeLibrary(^{
        EXPECT_TRUE([Creation changeRequestForAssetCollection:album("Work") assets:nil]);
        EXPECT_FALSE([Creation changeRequestForAssetCollection:smartAlbum(209) assets:nil]);
        EXPECT_FALSE([Creation changeRequestForAssetCollection:transient assets:nil]);
        EXPECT_FALSE([Creation changeRequestForAssetCollection:nil assets:nil]);
        EXPECT_FALSE([PHAssetChangeRequest changeRequestForAsset:nil]);
    }));
}

TEST_F(ChangeTest, WhatIsNoAssetCannotBeAdded) {
    ASSERT_TRUE(changeLibrary(^{
        Creation* request = [Creation changeRequestForAssetCollection:album("Work") assets:nil];
        EXPECT_EQ(exceptionOf(^{
                      [request addAssets:@[ @"text" ]];
                  }),
                  "NSInvalidArgumentException");
    }));
}

TEST_F(ChangeTest, RefusedChangeAppliesNothing) {
    refuseChanges(true);
    NSError* error = nil;
    const auto change = ^{
        [Creation creationRequestForAssetCollectionWithTitle:@"New"];
        [[PHAssetChangeRequest changeRequestForAsset:asset(0)] setHidden:YES];
    };
    EXPECT_EQ([[PHPhotoLibrary sharedPhotoLibrary] performChangesAndWait:change error:&error], NO);
    EXPECT_GT([[error localizedDescription] length], 0u);
    EXPECT_THAT(albumTitles(), Not(Contains("New")));
    EXPECT_FALSE(library().asset(photo(0))->hidden);
    refuseChanges(false);
    EXPECT_TRUE(changeLibrary(change));
    EXPECT_TRUE(library().asset(photo(0))->hidden);
}

TEST_F(ChangeTest, ChangeOfWhatIsGoneAppliesNothing) {
    PHAssetCollection* work = album("Work");
    ASSERT_TRUE(changeLibrary(^{
        [Creation deleteAssetCollections:@[ work ]];
    }));
    EXPECT_FALSE(changeLibrary(^{
        [Creation creationRequestForAssetCollectionWithTitle:@"New"];
        [[Creation changeRequestForAssetCollection:work assets:nil] addAssets:@[ asset(0) ]];
    }));
    EXPECT_THAT(albumTitles(), ElementsAre("Holidays", "Family", "Pets"));
    EXPECT_FALSE(changeLibrary(^{
        [Creation deleteAssetCollections:@[ smartAlbum(209) ]];
    }));
}

TEST_F(ChangeTest, UntitledAlbumsCanBeMade) {
    ASSERT_TRUE(changeLibrary(^{
        [Creation creationRequestForAssetCollectionWithTitle:nil];
    }));
    EXPECT_THAT(albumTitles(), Contains("-"));
}

} // namespace simulator::test
