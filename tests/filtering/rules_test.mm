// What is listed and fetched, rule by rule.
#import "CoreFoundation/CoreFoundation.h"
#import "filtering/filtering_fixture.h"
#import "hosts/applications/plain/plain_app.h"

namespace simulator::test {
namespace {

using MemorisedTitles = FilteringTest;

TEST_F(MemorisedTitles, are_those_that_the_last_list_read) {
    openAlbumList({{"passOption", 1}});
    for (NSArray* listing :
         { @[ [albums(PHAssetCollectionTypeSmartAlbum) firstObject] ], @[ album(@"Pets") ] }) {
        lockAlbums({"Family"});
        kCFCoreFoundationVersionNumber = ios11;
        listed(listing);
        photos::tapAlbum("Family");
        EXPECT_TRUE(isAskedForPassword());
        goBack();
        lockAlbums({});
        reload();
    }
}

struct AlbumRow {
    const char* bundleIdentifier;
    double version;
    nlohmann::json preferences;
    std::vector<std::string> locked;
    std::string listed; // with a star: as a copy
};

std::ostream& operator<<(std::ostream& out, const AlbumRow& row) {
    return out << row.bundleIdentifier << " on " << std::to_string(row.version) << " " << row.preferences
               << " locked " << testing::PrintToString(row.locked);
}

const nlohmann::json none = nlohmann::json::object();
const std::string all = "Holidays Family Work Pets Family Cloud ";

// "Cloud" is no regular album; two albums are called "Family". Copies are made whatever is locked.
const AlbumRow albumRows[] = {
    {host::plain, ios11, none, {}, "*Pets *Work *Family *Holidays Cloud "},
    {host::plain, ios11 - 0.01, {{"albumNameWork", false}}, {"Family", "Cloud"}, all},
    {host::plain, ios11, {{"enabled", false}}, {"Cloud"}, all},
    {host::plain, ios11, none, {"Work", "Cloud"}, "*Pets *Work *Family *Holidays "},
    {host::plain, ios11, {{"hideLockedFromApps", false}}, {"Cloud"}, "*Pets *Work *Family *Holidays Cloud "},
    {host::plain, ios11, {{"albumNameFamily", 0}, {"albumNameCloud", 0}}, {}, "*Pets *Work *Holidays "},
    {host::imgur, ios11, {{"albumNameWork", false}}, {"Cloud"}, "*Pets *Family *Holidays "},
    {host::photos, ios11, {{"albumNameFamily", false}}, {"Work"}, "Holidays Work Pets Cloud "},
    {host::settings, ios11, none, {}, all},
    {host::settings, ios11, {{"albumNameFamily", false}}, {"Work"}, "Holidays Pets Cloud "},
};

class Albums : public FilteringTest, public testing::WithParamInterface<AlbumRow> {};

TEST_P(Albums, are_listed_for_the_process) {
    library().addAlbum("Family");
    Change shared;
    shared.addAlbum("Cloud", std::nullopt, 101);
    library().apply(shared);
    lockAlbums(GetParam().locked);
    writePreferences(GetParam().preferences);
    change([](Conditions& conditions) { conditions.coreFoundationVersion = GetParam().version; });
    startComplete(GetParam().bundleIdentifier);
    NSArray* real = [albums() fetchedObjects];
    std::string found;
    for (PHAssetCollection* each in listed(real))
        found += ([real containsObject:each] ? "" : "*") + text([each title]) + " ";
    EXPECT_EQ(found, GetParam().listed);
}

INSTANTIATE_TEST_SUITE_P(Rows, Albums, testing::ValuesIn(albumRows));

class Releases : public FilteringTest, public testing::WithParamInterface<Release> {};

TEST_P(Releases, list_albums_to_a_plain_application) {
    change([](Conditions& conditions) { conditions.release = GetParam(); });
    writePreferences({{"albumNameWork", false}, {"showVideos", false}, {"showDeleted", false}});
    start(host::plain);
    std::vector<std::string> titles;
    for (const auto& row : plain::listPicker())
        titles.push_back(row.at("title"));
    const bool filtersAlbums = coreFoundationVersion(GetParam()) >= ios11;
    EXPECT_EQ(std::ranges::count(titles, "Work"), filtersAlbums ? 0 : 1);
    EXPECT_EQ(titles.front() == "Pets", filtersAlbums) << "copies are in front";
    EXPECT_EQ(std::ranges::count(titles, "Videos"), 0);
    // The trash is known by a method of iOS 9.
    EXPECT_EQ(std::ranges::count(titles, "Recently Deleted"), GetParam() == Release::ios8_4 ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(All, Releases, testing::ValuesIn(allReleases + 1, allReleases + 9));

enum class Hidden { included, excluded, untouched };

class Fetches : public FilteringTest, public testing::WithParamInterface<const char*> {
  protected:
    // The caller's own options are changed.
    void compare(SEL fetch, id collection, Hidden expected) {
        for (const bool given : {true, false}) {
            PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
            [options setIncludeHiddenAssets:given ? YES : NO];
            [PHAsset performSelector:fetch withObject:collection withObject:options];
            EXPECT_EQ([options includeHiddenAssets] != NO,
                      expected == Hidden::included || (given && expected == Hidden::untouched))
                << text(NSStringFromSelector(fetch)) << text([collection description]) << given;
        }
        PHFetchResult* fetched = [PHAsset performSelector:fetch withObject:collection withObject:nil];
        if ([[collection title] isEqual:@"Holidays"] && [fetched count] > 0)
            EXPECT_EQ([fetched count], expected == Hidden::included ? 3U : 2U) << "without options";
    }
};

TEST_P(Fetches, include_hidden_photos_by_the_kind_of_collection) {
    library().setHidden(library().assets().front().identifier, true);
    startComplete(GetParam());
    FakeCollection* untitled = [FakeCollection collectionOfType:1 subtype:2 title:@"Locked"];
    untitled->lacking = {"title"};
    FakeCollection* untyped = [FakeCollection collectionOfType:1 subtype:2 title:@"Locked"];
    untyped->lacking = {"assetCollectionType"};
    const struct {
        id collection;
        Hidden assets;
        Hidden keyAssets;
        bool isLocked = false;
    } rows[] = {
        {album(@"Holidays"), Hidden::included, Hidden::included, true},
        {album(@"Family"), Hidden::included, Hidden::included},
        {[PHAssetCollection transientAssetCollectionWithAssets:@[] title:@"Locked"], Hidden::included,
         Hidden::included, true},
        {untitled, Hidden::included, Hidden::included},
        {[albums(PHAssetCollectionTypeSmartAlbum) firstObject], Hidden::excluded, Hidden::excluded},
        {[albums(PHAssetCollectionTypeMoment) firstObject], Hidden::included, Hidden::untouched},
        {[FakeCollection collectionOfType:4 subtype:2 title:@"Locked"], Hidden::untouched, Hidden::untouched},
        {untyped, Hidden::untouched, Hidden::untouched},
        {nil, Hidden::untouched, Hidden::untouched},
    };
    const bool isPhotos = GetParam() == std::string(host::photos);
    for (const int bits : {0, 1, 2, 3, 4, 5, 6, 7}) {
        const bool enabled = bits & 1, hides = bits & 2, locks = bits & 4;
        lockAlbums({locks ? "Holidays" : "None", locks ? "Locked" : "None"});
        reloadPreferences({{"enabled", enabled}, {"hideLockedFromApps", hides}});
        for (const auto& row : rows) {
            const bool isSecret = hides && locks && row.isLocked && !isPhotos;
            compare(@selector(fetchAssetsInAssetCollection:options:), row.collection,
                    isSecret ? Hidden::untouched : row.assets);
            compare(@selector(fetchKeyAssetsInAssetCollection:options:), row.collection, row.keyAssets);
        }
        EXPECT_EQ([albums() fetchedObjectIDsSet] != nil, isPhotos);
        EXPECT_EQ([[albums() fetchedObjects] count], 4U);
        PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
        [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeSmartAlbum
                                                 subtype:PHAssetCollectionSubtypeAny
                                                 options:options];
        EXPECT_TRUE([options includeHiddenAssets]);
    }
}

INSTANTIATE_TEST_SUITE_P(Hosts, Fetches, testing::Values(host::photos, host::settings, host::plain));

} // namespace
} // namespace simulator::test
