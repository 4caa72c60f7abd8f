// What fetches return: the rules for hidden and deleted assets, order, predicates, snapshots.
#import "simulator/photos/photos_test.h"

#include <gmock/gmock.h>

#include <thread>

namespace simulator::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using Numbers = std::vector<int>;

class FetchTest : public PhotosTest {};

PHFetchResult* assetsIn(PHAssetCollection* collection, PHFetchOptions* options = nil) {
    return [PHAsset fetchAssetsInAssetCollection:collection options:options];
}

PHFetchResult* albums(PHFetchOptions* options = nil) {
    return [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                    subtype:PHAssetCollectionSubtypeAny
                                                    options:options];
}

} // namespace

TEST_F(FetchTest, AlbumsComeInTheUsersOrder) {
    EXPECT_THAT(titles(albums()), ElementsAre("Holidays", "Family", "Work", "Pets"));
}

TEST_F(FetchTest, AlbumKeepsItsOwnOrder) {
    library().addToAlbum(library().albumTitled("Work")->identifier, {photo(9), photo(2)});
    EXPECT_EQ(numbers(assetsIn(album("Work"))), (Numbers{6, 9, 2}));
}

TEST_F(FetchTest, HiddenAssetsAreLeftOutUnlessTheOptionsIncludeThem) {
    library().setHidden(photo(2), true);
    struct Case {
        const char* what;
        PHFetchResult* (^fetch)(PHFetchOptions*);
        Numbers without;
        Numbers with;
    };
    PHAssetCollection* holidays = album("Holidays");
    PHAssetCollection* cameraRoll = smartAlbum(209);
    PHAssetCollection* moment =
        [[PHAssetCollection fetchAssetCollectionsContainingAsset:asset(2)
                                                        withType:PHAssetCollectionTypeMoment
                                                         options:nil] firstObject];
    PHAssetCollection* transient =
        [PHAssetCollection transientAssetCollectionWithAssets:@[ asset(2), asset(1) ] title:@"T"];
    const Case cases[] = {{"an album", ^(PHFetchOptions* options){
                               return assetsIn(holidays, options);
}
, {0, 1}, {0, 1, 2}
} // namespace simulator::test
, {"a smart album", ^(PHFetchOptions* options){
       return assetsIn(cameraRoll, options);
}
, {0, 1, 3, 4, 5, 6, 7, 8, 9}, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}
}
, {"a moment", ^(PHFetchOptions* options){
       return assetsIn(moment, options);
}
, {}, {2}
}
, {"a transient collection", ^(PHFetchOptions* options){
       return assetsIn(transient, options);
}
, {1}, {2, 1}
}
, {"all videos and photos", ^(PHFetchOptions* options){
       return [PHAsset fetchAssetsWithOptions:options];
}
, {0, 1, 3, 4, 5, 6, 7, 8, 9}, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}
}
, {"photos", ^(PHFetchOptions* options){
       return [PHAsset fetchAssetsWithMediaType:PHAssetMediaTypeImage options:options];
}
, {0, 1, 3, 4, 5, 6, 8, 9}, {0, 1, 2, 3, 4, 5, 6, 8, 9}
}
, {"key assets", ^(PHFetchOptions* options){
       return [PHAsset fetchKeyAssetsInAssetCollection:holidays options:options];
}
, {0, 1}, {0, 1, 2}
}
,
}
;
for (const Case& fetch : cases) {
    EXPECT_EQ(numbers(fetch.fetch(nil)), fetch.without) << fetch.what;
    EXPECT_EQ(numbers(fetch.fetch([[[PHFetchOptions alloc] init] autorelease])), fetch.without) << fetch.what;
    EXPECT_EQ(numbers(fetch.fetch(includingHidden())), fetch.with) << fetch.what;
}
}

TEST_F(FetchTest, HiddenAlbumAndTrashBinShowHiddenAssets) {
    library().setHidden(photo(2), true);
    library().setHidden(photo(3), true);
    library().setTrashed(photo(3), true);
    EXPECT_EQ(numbers(assetsIn(smartAlbum(205))), Numbers{2});
    EXPECT_EQ(numbers(assetsIn(smartAlbum(1000000201))), Numbers{3});
}

TEST_F(FetchTest, AssetsInTheTrashAreInTheTrashBinOnly) {
    library().setTrashed(photo(2), true);
    EXPECT_EQ(numbers(assetsIn(album("Holidays"), includingHidden())), (Numbers{0, 1}));
    EXPECT_THAT(numbers([PHAsset fetchAssetsWithOptions:nil]), Not(Contains(2)));
    EXPECT_EQ([smartAlbum(1000000201) isTrashBin], YES);
    EXPECT_EQ([smartAlbum(209) isTrashBin], NO);
    library().setTrashed(photo(2), false);
    EXPECT_EQ(numbers(assetsIn(album("Holidays"))), (Numbers{0, 1, 2}));
}

TEST_F(FetchTest, SmartAlbumsHoldWhatTheirRulesSay) {
    setCurrentRelease(Release::ios11_4);
    const struct {
        NSInteger subtype;
        Asset asset;
    } cases[] = {
        {201, {.mediaSubtypes = mediaSubtype::panorama}},
        {202, {.mediaType = MediaType::video}},
        {203, {.favorite = true}},
        {204, {.mediaType = MediaType::video, .mediaSubtypes = mediaSubtype::timelapseVideo}},
        {205, {.hidden = true}},
        {206, {.created = 600'000'000.0}},
        {207, {.traits = trait::burst}},
        {208, {.mediaType = MediaType::video, .mediaSubtypes = mediaSubtype::highFrameRateVideo}},
        {209, {}},
        {210, {.traits = trait::selfPortrait}},
        {211, {.mediaSubtypes = mediaSubtype::screenshot}},
        {212, {.mediaSubtypes = mediaSubtype::depthEffect}},
        {213, {.mediaSubtypes = mediaSubtype::livePhoto}},
        {214, {.traits = trait::animated}},
        {215, {.traits = trait::longExposure}},
        {1000000201, {.trashed = true}},
        {1000000203, {.traits = trait::located}},
    };
    for (const auto& [subtype, sample] : cases) {
        PHAssetCollection* collection = smartAlbum(subtype);
        ASSERT_TRUE(collection) << subtype;
        EXPECT_EQ([collection assetCollectionSubtype], subtype);
        NSString* added = [NSString stringWithUTF8String:library().addAsset(sample).c_str()];
        NSSet* members = [assetsIn(collection) fetchedObjectIDsSet];
        EXPECT_EQ([members containsObject:added], YES) << subtype;
        EXPECT_EQ([members containsObject:[asset(0) objectID]], subtype == 209 ? YES : NO) << subtype;
    }
}

TEST_F(FetchTest, ReleaseDecidesWhichSmartAlbumsThereAre) {
    const struct {
        Release release;
        NSInteger newest;
        NSInteger missing;
    } cases[] = {{Release::ios8_4, 209, 210},  {Release::ios9_3, 211, 212},  {Release::ios10_2, 212, 213},
                 {Release::ios10_3, 213, 214}, {Release::ios11_4, 215, 216}, {Release::complete, 215, 216}};
    for (const auto& [release, newest, missing] : cases) {
        setCurrentRelease(release);
        EXPECT_TRUE(smartAlbum(newest)) << releaseName(release);
        EXPECT_FALSE(smartAlbum(missing)) << releaseName(release);
    }
}

TEST_F(FetchTest, ResultsAreSnapshots) {
    PHFetchResult* members = assetsIn(album("Holidays"));
    PHFetchResult* list = albums();
    library().setHidden(photo(0), true);
    library().setTrashed(photo(1), true);
    library().addAlbum("New");
    EXPECT_EQ(numbers(members), (Numbers{0, 1, 2}));
    EXPECT_EQ([[members firstObject] isHidden], NO);
    EXPECT_EQ([list count], 4u);
    EXPECT_EQ(numbers(assetsIn(album("Holidays"))), Numbers{2});
    EXPECT_EQ([albums() count], 5u);
}

TEST_F(FetchTest, PredicateFindsTitlesWhateverTheyHold) {
    const char* const strange[] = {
        "It's mine", "\"Quoted\"", "back\\slash", "100 %@ %d", "\xF0\x9F\x8C\xB4 palm", "two\nlines", ""};
    for (const char* title : strange)
        library().addAlbum(title);
    library().addAlbum(std::nullopt);
    for (const char* title : strange) {
        PHFetchResult* found = albums(matching(@"title = %@", [NSString stringWithUTF8String:title]));
        EXPECT_THAT(titles(found), ElementsAre(title));
        found = albums(matching(@"localizedTitle == %@", [NSString stringWithUTF8String:title]));
        EXPECT_THAT(titles(found), ElementsAre(title));
    }
    EXPECT_THAT(titles(albums(matching(@"title = %@", @"nowhere"))), IsEmpty());
}

TEST_F(FetchTest, OfSeveralAlbumsOfOneTitleTheFirstComesFirst) {
    const std::string first = library().addAlbum("Twice");
    library().addAlbum("Twice");
    EXPECT_EQ([albums(matching(@"title = %@", @"Twice")) count], 2u);
    EXPECT_STREQ([[album("Twice") localIdentifier] UTF8String], first.c_str());
}

TEST_F(FetchTest, PredicatesReachTheListedKeysOfAssets) {
    library().setHidden(photo(1), true);
    const struct {
        NSString* format;
        id argument;
        Numbers found;
    } cases[] = {
        {@"mediaType = %@", @2, {7}},
        {@"favorite = %@", @(YES), {3}},
        {@"isFavorite = %@", @(YES), {3}},
        {@"hidden = %@", @(YES), {}},
        {@"isHidden = %@", @(NO), {0, 2, 3, 4, 5, 6, 7, 8, 9}},
        {@"mediaSubtypes = %@", @4, {8}},
        {@"creationDate < %@", [asset(2) creationDate], { 0 }},
        {@"localIdentifier = %@", [asset(4) localIdentifier], { 4 }},
        {@"SELF IN %@", @ [asset(5), asset(6)], { 5, 6 }},
    };
    for (const auto& [format, argument, found] : cases)
        EXPECT_EQ(numbers([PHAsset fetchAssetsWithOptions:matching(format, argument)]), found)
            << [format UTF8String];
}

TEST_F(FetchTest, SortDescriptorsOrderAssets) {
    EXPECT_EQ(numbers([PHAsset fetchAssetsWithMediaType:PHAssetMediaTypeImage
                                                options:sortedBy(@"creationDate", YES)]),
              (Numbers{0, 1, 2, 3, 4, 5, 6, 8, 9}));
    EXPECT_EQ(numbers([PHAsset fetchAssetsWithOptions:sortedBy(@"creationDate", NO)]),
              (Numbers{9, 8, 7, 6, 5, 4, 3, 2, 1, 0}));
    // Equal ones keep the order they had.
    EXPECT_EQ(numbers([PHAsset fetchAssetsWithOptions:sortedBy(@"favorite", NO)]),
              (Numbers{3, 0, 1, 2, 4, 5, 6, 7, 8, 9}));
}

TEST_F(FetchTest, NewestDateWinsHoweverLateAnAssetWasAdded) {
    library().addAsset({.created = 1.0});
    library().addAsset({});
    PHFetchResult* photos = [PHAsset fetchAssetsWithMediaType:PHAssetMediaTypeImage
                                                      options:sortedBy(@"creationDate", YES)];
    EXPECT_EQ([photos count], 11u);
    EXPECT_EQ([[photos lastObject] isEqual:asset(9)], YES);
}

TEST_F(FetchTest, SortDescriptorsOrderCollections) {
    library().addAlbum(std::nullopt);
    EXPECT_THAT(titles(albums(sortedBy(@"localizedTitle", YES))),
                ElementsAre("-", "Family", "Holidays", "Pets", "Work"));
    EXPECT_THAT(titles(albums(sortedBy(@"title", NO))),
                ElementsAre("Work", "Pets", "Holidays", "Family", "-"));
}

TEST_F(FetchTest, UnknownSortKeyRaises) {
    EXPECT_EQ(exceptionOf(^{
                  [PHAsset fetchAssetsWithOptions:sortedBy(@"colour", YES)];
              }),
              "NSInvalidArgumentException");
    EXPECT_EQ(exceptionOf(^{
                  albums(sortedBy(@"colour", YES));
              }),
              "NSInvalidArgumentException");
}

TEST_F(FetchTest, FetchLimitCutsAfterSorting) {
    PHFetchOptions* options = sortedBy(@"creationDate", NO);
    options.fetchLimit = 2;
    EXPECT_EQ(numbers([PHAsset fetchAssetsWithOptions:options]), (Numbers{9, 8}));
    PHFetchOptions* copy = [[options copy] autorelease];
    copy.fetchLimit = 3;
    EXPECT_EQ(options.fetchLimit, 2u);
    EXPECT_EQ(numbers([PHAsset fetchAssetsWithOptions:copy]), (Numbers{9, 8, 7}));
}

TEST_F(FetchTest, ResultAnswersLikeAnArray) {
    PHFetchResult* result = assetsIn(album("Family"));
    EXPECT_EQ([result count], 4u);
    EXPECT_EQ([result firstObject], [result objectAtIndex:0]);
    EXPECT_EQ([result lastObject], [result objectAtIndexedSubscript:3]);
    EXPECT_EQ([result containsObject:asset(3)], YES);
    EXPECT_EQ([result containsObject:asset(0)], NO);
    EXPECT_EQ([result indexOfObject:asset(4)], 2u);
    EXPECT_EQ([result indexOfObject:asset(0)], static_cast<NSUInteger>(NSNotFound));
    EXPECT_EQ([[result fetchedObjects] count], 4u);
    EXPECT_EQ([[result fetchedObjectIDsSet] count], 4u);
    EXPECT_EQ([result countOfAssetsWithMediaType:PHAssetMediaTypeImage], 4u);
    EXPECT_EQ(exceptionOf(^{
                  [result objectAtIndex:4];
              }),
              "NSRangeException");
    __block NSUInteger visited = 0;
    [result enumerateObjectsUsingBlock:^(id object, NSUInteger index, BOOL* stop) {
        EXPECT_EQ(object, [result objectAtIndex:index]);
        ++visited;
        if (index == 1) *stop = YES;
    }];
    EXPECT_EQ(visited, 2u);
}

TEST_F(FetchTest, EmptyResultHasNoObjects) {
    PHFetchResult* result = assetsIn(album("Pets"));
    EXPECT_EQ([result count], 0u);
    EXPECT_FALSE([result firstObject]);
    EXPECT_FALSE([result lastObject]);
    EXPECT_EQ(exceptionOf(^{
                  [result objectAtIndex:0];
              }),
              "NSRangeException");
    EXPECT_THAT(numbers(result), IsEmpty());
    EXPECT_FALSE([PHAsset fetchKeyAssetsInAssetCollection:album("Pets") options:nil]);
    EXPECT_EQ([assetsIn(nil) count], 0u);
}

TEST_F(FetchTest, FastEnumerationReachesEveryObjectOfALongResult) {
    Change change;
    for (int number = 0; number < 100; ++number)
        change.addAsset({});
    library().apply(change);
    PHFetchResult* result = [PHAsset fetchAssetsWithOptions:nil];
    NSMutableSet* seen = [NSMutableSet set];
    for (PHAsset* asset in result)
        [seen addObject:asset];
    EXPECT_EQ([seen count], 110u);
}

TEST_F(FetchTest, ObjectsOfOneIdentifierAreEqual) {
    PHAsset* one = asset(1);
    PHAsset* other = asset(1);
    EXPECT_NE(one, other);
    EXPECT_EQ([one isEqual:other], YES);
    EXPECT_EQ([one hash], [other hash]);
    EXPECT_EQ([one isEqual:asset(2)], NO);
    EXPECT_EQ([one isEqual:@"text"], NO);
    EXPECT_EQ([album("Work") isEqual:album("Work")], YES);
}

TEST_F(FetchTest, AlbumsContainingAnAssetLeaveOutSmartAlbums) {
    library().setHidden(photo(2), true);
    const auto containing = [](PHAsset* asset, PHAssetCollectionType type) {
        return titles([PHAssetCollection fetchAssetCollectionsContainingAsset:asset
                                                                     withType:type
                                                                      options:nil]);
    };
    EXPECT_THAT(containing(asset(2), PHAssetCollectionTypeAlbum), ElementsAre("Holidays", "Family"));
    EXPECT_THAT(containing(asset(9), PHAssetCollectionTypeAlbum), IsEmpty());
    EXPECT_THAT(containing(asset(2), PHAssetCollectionTypeSmartAlbum), IsEmpty());
    EXPECT_THAT(containing(asset(2), PHAssetCollectionTypeMoment), ElementsAre("-"));
    EXPECT_THAT(containing(nil, PHAssetCollectionTypeAlbum), IsEmpty());
}

TEST_F(FetchTest, CollectionsAreFoundByIdentifierInTheOrderAsked) {
    NSArray* identifiers = @[
        [smartAlbum(203) localIdentifier], @"unknown", [album("Work") localIdentifier],
        [smartAlbum(203) localIdentifier]
    ];
    EXPECT_THAT(titles([PHAssetCollection fetchAssetCollectionsWithLocalIdentifiers:identifiers options:nil]),
                ElementsAre("Favorites", "Work"));
    EXPECT_THAT(titles([PHAssetCollection fetchAssetCollectionsWithLocalIdentifiers:@[] options:nil]),
                IsEmpty());
}

TEST_F(FetchTest, OneMomentPerDay) {
    PHFetchResult* moments = [PHAssetCollection fetchMomentsWithOptions:nil];
    ASSERT_EQ([moments count], 10u);
    PHAssetCollection* third = [moments objectAtIndex:2];
    EXPECT_EQ([third assetCollectionType], PHAssetCollectionTypeMoment);
    EXPECT_EQ([[third startDate] isEqual:[asset(2) creationDate]], YES);
    EXPECT_EQ(numbers(assetsIn(third)), Numbers{2});
    PHFetchResult* again =
        [PHAssetCollection fetchAssetCollectionsWithLocalIdentifiers:@[ [third localIdentifier] ]
                                                             options:nil];
    EXPECT_EQ([[again firstObject] isEqual:third], YES);
}

TEST_F(FetchTest, SubtypeSelectsAmongAlbums) {
    Change change;
    change.addAlbum("Imported", std::nullopt, PHAssetCollectionSubtypeAlbumImported);
    library().apply(change);
    PHFetchResult* regular =
        [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                 subtype:PHAssetCollectionSubtypeAlbumRegular
                                                 options:nil];
    EXPECT_THAT(titles(regular), Not(Contains("Imported")));
    EXPECT_THAT(titles(albums()), Contains("Imported"));
    EXPECT_EQ([album("Imported") assetCollectionSubtype], PHAssetCollectionSubtypeAlbumImported);
}

TEST_F(FetchTest, FoldersHoldAlbumsAndFolders) {
    Change change;
    const std::string trips = change.addFolder("Trips");
    change.addAlbum("Rome", trips);
    change.addFolder("Islands", trips);
    library().apply(change);
    PHCollectionList* folder = [[PHCollectionList fetchCollectionListsWithType:PHCollectionListTypeFolder
                                                                       subtype:PHCollectionListSubtypeAny
                                                                       options:nil] firstObject];
    EXPECT_THAT(titles([folder collections]), ElementsAre("Rome", "Islands"));
    EXPECT_THAT(titles([PHCollection fetchCollectionsInCollectionList:folder options:nil]),
                ElementsAre("Rome", "Islands"));
    EXPECT_THAT(titles([PHCollection fetchTopLevelUserCollectionsWithOptions:nil]),
                ElementsAre("Holidays", "Family", "Work", "Pets", "Trips"));
    EXPECT_EQ([folder respondsToSelector:@selector(title)], NO);
    EXPECT_EQ([folder respondsToSelector:@selector(assetCollectionType)], NO);
    EXPECT_STREQ([[folder localizedTitle] UTF8String], "Trips");
}

TEST_F(FetchTest, TransientListHandsOutWhatItWasMadeOf) {
    NSArray* content = @[ smartAlbum(209), album("Work") ];
    PHCollectionList* list = [PHCollectionList transientCollectionListWithCollections:content title:@"All"];
    EXPECT_EQ([[list collections] isEqual:content], YES);
}

TEST_F(FetchTest, TransientCollectionIsAnAlbumOfItsOwn) {
    PHAssetCollection* transient =
        [PHAssetCollection transientAssetCollectionWithAssets:@[ asset(4), asset(1) ] title:@"Copy"];
    EXPECT_EQ([transient assetCollectionType], PHAssetCollectionTypeAlbum);
    EXPECT_STREQ([[transient title] UTF8String], "Copy");
    EXPECT_EQ([transient isTrashBin], NO);
    EXPECT_EQ(numbers(assetsIn(transient)), (Numbers{4, 1}));
    EXPECT_FALSE([[PHAssetCollection transientAssetCollectionWithAssets:@[] title:nil] title]);
    EXPECT_EQ([albums() count], 4u);
}

TEST_F(FetchTest, CountOfAnAlbumLeavesOutWhatIsNotVisible) {
    library().setHidden(photo(0), true);
    EXPECT_EQ([album("Holidays") estimatedAssetCount], 2u);
    EXPECT_EQ([smartAlbum(209) estimatedAssetCount], static_cast<NSUInteger>(NSNotFound));
}

TEST_F(FetchTest, PropertyNamesThatThePlatformLacksAreLackingHere) {
    EXPECT_EQ([asset(0) respondsToSelector:@selector(hidden)], NO);
    EXPECT_EQ([asset(0) respondsToSelector:@selector(isHidden)], YES);
}

TEST_F(FetchTest, SeveralThreadsReadOneResult) {
    PHFetchResult* result = [PHAsset fetchAssetsWithOptions:nil];
    std::vector<std::thread> threads;
    threads.reserve(4);
    std::atomic<int> seen = 0;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([&] {
            @autoreleasepool {
                for (PHAsset* asset in result)
                    seen += [asset mediaType] == PHAssetMediaTypeImage ? 1 : 0;
                seen += static_cast<int>([[PHAsset fetchAssetsWithOptions:nil] count]);
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(seen, 4 * (9 + 10));
}

} // namespace simulator::test
