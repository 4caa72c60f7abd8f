// What is listed and fetched, rule by rule.
#import "filtering/filtering_test.h"
#import "filtering/literal_collections.h"

#import "CoreFoundation/CoreFoundation.h"
#import "hosts/applications/common/screen.h"
#import "hosts/applications/plain/plain_app.h"

#include <gmock/gmock.h>

namespace simulator::test {
namespace {

using testing::ElementsAreArray;

struct SmartAlbumRow {
    NSInteger subtype;
    std::string key; // of its switch; none: always listed
    std::string label;
};

std::vector<SmartAlbumRow> smartAlbumRows() {
    std::vector<SmartAlbumRow> rows = {{205, "showHidden", ""}, {trashBinSubtype, "showDeleted", ""}};
    for (const NSInteger always : {200, 206, 209, 214, 216, 1000000204})
        rows.push_back({always, "", "Animated"});
    for (const StockSmartAlbum& each : stockSmartAlbums)
        rows.push_back({each.subtype, text(each.key), text(each.label)});
    return rows;
}

class SmartAlbums : public FilteringTest, public testing::WithParamInterface<const char*> {
  protected:
    NSArray* collections() {
        NSMutableArray* all = [NSMutableArray array];
        for (const SmartAlbumRow& row : m_rows) {
            FakeCollection* album = [FakeCollection collectionOfType:2 subtype:row.subtype title:@"Videos"];
            album->isTrash = row.subtype == trashBinSubtype ? YES : NO;
            [all addObject:album];
        }
        return all;
    }
    bool isListed(const SmartAlbumRow& row, bool isOn, const std::vector<std::string>& locked) {
        const bool isPhotos = GetParam() == std::string(host::photos);
        if (row.key.empty()) return true;
        if (row.label.empty()) return isOn && (row.subtype != 205 || isPhotos);
        return isOn && (isPhotos || std::ranges::find(locked, row.label) == locked.end());
    }
    // One switch stands against all others.
    void compare(const std::string& key, bool value, const std::vector<std::string>& locked) {
        SCOPED_TRACE(key + (value ? " on, " : " off, ") + testing::PrintToString(locked));
        lockAlbums(locked);
        nlohmann::json preferences{{"hideLockedFromApps", value}};
        for (const SmartAlbumRow& row : m_rows)
            if (!row.key.empty()) preferences[row.key] = row.key == key ? value : !value;
        reload(preferences);
        std::vector<std::string> expected;
        for (std::size_t index = 0; index < m_rows.size(); ++index)
            if (isListed(m_rows[index], m_rows[index].key == key ? value : !value, locked))
                expected.push_back(std::to_string(index));
        for (const double version : {ios11 - 0.01, ios11}) {
            kCFCoreFoundationVersionNumber = version;
            EXPECT_THAT(filtered(collections()), ElementsAreArray(expected)) << version;
        }
    }

    const std::vector<SmartAlbumRow> m_rows = smartAlbumRows();
};

TEST_P(SmartAlbums, follow_their_own_switch_and_label) {
    startComplete(GetParam());
    std::vector<std::string> everyLabel;
    for (const SmartAlbumRow& row : m_rows)
        if (!row.label.empty()) everyLabel.push_back(row.label);
    for (const SmartAlbumRow& row : m_rows)
        for (const bool value : {true, false})
            for (const auto& locked : {std::vector<std::string>(), std::vector{row.label}, everyLabel})
                @autoreleasepool {
                    compare(row.key, value, locked);
                }
}

INSTANTIATE_TEST_SUITE_P(Hosts, SmartAlbums, testing::Values(host::photos, host::settings, host::plain));

struct AlbumRow {
    const char* bundleIdentifier;
    double version;
    nlohmann::json preferences;
    std::vector<std::string> locked;
    std::vector<std::string> listed; // with a star: as a copy
};

std::ostream& operator<<(std::ostream& out, const AlbumRow& row) {
    return out << row.bundleIdentifier << " on " << std::to_string(row.version) << " " << row.preferences
               << " locked " << testing::PrintToString(row.locked);
}

const nlohmann::json none = nlohmann::json::object();
const std::vector<std::string> everyAlbum = {"Holidays", "Family", "Work", "Pets", "Family", "Cloud"};

// "Cloud" is no regular album; two albums are called "Family".
const AlbumRow albumRows[] = {
    {host::plain, ios11, none, {}, {"*Pets", "*Work", "*Family", "*Holidays", "Cloud"}},
    {host::plain, ios11 - 0.01, {{"albumNameWork", false}}, {"Family", "Cloud"}, everyAlbum},
    {host::plain, ios11, {{"enabled", false}}, {"Cloud"}, everyAlbum},
    // Copies are made whatever the locked list says.
    {host::plain, ios11, none, {"Work", "Cloud"}, {"*Pets", "*Work", "*Family", "*Holidays"}},
    {host::plain,
     ios11,
     {{"hideLockedFromApps", false}},
     {"Cloud"},
     {"*Pets", "*Work", "*Family", "*Holidays", "Cloud"}},
    {host::plain,
     ios11,
     {{"albumNameFamily", false}, {"albumNameCloud", false}},
     {},
     {"*Pets", "*Work", "*Holidays"}},
    {host::plain,
     ios11,
     {{"albumNameFamily", true}, {"xalbumNameWork", false}},
     {},
     {"*Pets", "*Work", "*Family", "*Holidays", "Cloud"}},
    {host::imgur, ios11, {{"albumNameWork", false}}, {"Cloud"}, {"*Pets", "*Family", "*Holidays"}},
    {host::photos, ios11, {{"albumNameFamily", false}}, {"Work"}, {"Holidays", "Work", "Pets", "Cloud"}},
    {host::settings, ios11, none, {}, everyAlbum},
    {host::settings, ios11, {{"albumNameFamily", false}}, {"Work"}, {"Holidays", "Pets", "Cloud"}},
};

class Albums : public FilteringTest, public testing::WithParamInterface<AlbumRow> {};

TEST_P(Albums, are_listed_for_the_process) {
    library().addAlbum("Family");
    Change shared;
    shared.addAlbum("Cloud", std::nullopt, 101);
    library().apply(shared);
    lockAlbums(GetParam().locked);
    startComplete(GetParam().bundleIdentifier);
    kCFCoreFoundationVersionNumber = GetParam().version;
    reload(GetParam().preferences);
    NSArray* all = [albums() fetchedObjects];
    std::vector<std::string> listed;
    for (PHAssetCollection* each in
         [[PHCollectionList transientCollectionListWithCollections:all title:nil] collections])
        listed.push_back(([all containsObject:each] ? "" : "*") + text([each title]));
    EXPECT_EQ(listed, GetParam().listed);
}

INSTANTIATE_TEST_SUITE_P(Rows, Albums, testing::ValuesIn(albumRows));

enum class Hidden { included, excluded, untouched };

struct FetchRow {
    const char* collection;
    Hidden assets;
    Hidden keyAssets;
    Hidden lockedAssets = assets; // while the title "Holidays" is locked
};

class Fetches : public FilteringTest, public testing::WithParamInterface<const char*> {
  protected:
    id collection(const std::string& kind) {
        FakeCollection* untyped = [FakeCollection collectionOfType:4 subtype:2 title:@"Holidays"];
        UntitledCollection* untitled = [[[UntitledCollection alloc] init] autorelease];
        untitled->type = 1;
        const std::map<std::string, id> collections = {
            {"album", album(@"Holidays")},
            {"untitled", untitled},
            {"copy", [PHAssetCollection transientAssetCollectionWithAssets:@[] title:@"Holidays"]},
            {"smart album", [albums(PHAssetCollectionTypeSmartAlbum) firstObject]},
            {"moment", [albums(PHAssetCollectionTypeMoment) firstObject]},
            {"other type", untyped},
            {"no type", [[[UntypedCollection alloc] init] autorelease]},
            {"nil", nil},
        };
        return collections.at(kind);
    }
    void compare(SEL fetch, const std::string& kind, Hidden expected) {
        for (const bool given : {true, false}) {
            PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
            [options setIncludeHiddenAssets:given ? YES : NO];
            [PHAsset performSelector:fetch withObject:collection(kind) withObject:options];
            EXPECT_EQ([options includeHiddenAssets] != NO,
                      expected == Hidden::included || (given && expected == Hidden::untouched))
                << kind << (given ? ", given with" : ", given without");
        }
        if (kind != "album") return;
        PHFetchResult* fetched = [PHAsset performSelector:fetch withObject:collection(kind) withObject:nil];
        EXPECT_EQ([fetched count], expected == Hidden::included ? 3U : 2U) << "without options";
    }
};

TEST_P(Fetches, include_hidden_photos_by_the_kind_of_collection) {
    const Hidden ofLocked = GetParam() == std::string(host::photos) ? Hidden::included : Hidden::untouched;
    const FetchRow rows[] = {
        {"album", Hidden::included, Hidden::included, ofLocked},
        {"copy", Hidden::included, Hidden::included, ofLocked},
        {"untitled", Hidden::included, Hidden::included},
        {"smart album", Hidden::excluded, Hidden::excluded},
        {"moment", Hidden::included, Hidden::untouched},
        {"other type", Hidden::untouched, Hidden::untouched},
        {"no type", Hidden::untouched, Hidden::untouched},
        {"nil", Hidden::untouched, Hidden::untouched},
    };
    library().setHidden(library().assets().front().identifier, true);
    startComplete(GetParam());
    for (const bool enabled : {true, false})
        for (const bool hides : {true, false})
            for (const bool locked : {true, false}) {
                SCOPED_TRACE(testing::Message() << enabled << hides << locked);
                lockAlbums(locked ? std::vector<std::string>{"Holidays"} : std::vector<std::string>());
                reload({{"enabled", enabled}, {"hideLockedFromApps", hides}});
                for (const FetchRow& row : rows) {
                    compare(@selector(fetchAssetsInAssetCollection:options:), row.collection,
                            hides && locked ? row.lockedAssets : row.assets);
                    compare(@selector(fetchKeyAssetsInAssetCollection:options:), row.collection,
                            row.keyAssets);
                }
            }
}

TEST_P(Fetches, answer_object_identifiers_in_photos_alone) {
    startComplete(GetParam());
    for (const bool enabled : {true, false}) {
        reload({{"enabled", enabled}});
        NSSet* identifiers = [albums() fetchedObjectIDsSet];
        EXPECT_EQ([identifiers count], GetParam() == std::string(host::photos) ? 4U : 0U);
        EXPECT_EQ(identifiers != nil, GetParam() == std::string(host::photos));
        EXPECT_EQ([[albums() fetchedObjects] count], 4U);
    }
}

INSTANTIATE_TEST_SUITE_P(Hosts, Fetches, testing::Values(host::photos, host::settings, host::plain));

class AlbumFetches : public FilteringTest, public testing::WithParamInterface<double> {};

TEST_P(AlbumFetches, include_hidden_photos_from_ios_10_on) {
    change([](Conditions& conditions) { conditions.coreFoundationVersion = GetParam(); });
    startComplete(host::plain);
    for (const bool enabled : {true, false}) {
        reload({{"enabled", enabled}});
        PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
        [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeSmartAlbum
                                                 subtype:PHAssetCollectionSubtypeAny
                                                 options:options];
        EXPECT_EQ([options includeHiddenAssets] != NO, GetParam() >= 1300.0);
        EXPECT_EQ([albums() count], 4U);
    }
}

INSTANTIATE_TEST_SUITE_P(Versions, AlbumFetches, testing::Values(1299.99, 1300.0));

class Releases : public FilteringTest, public testing::WithParamInterface<Release> {};

TEST_P(Releases, list_albums_to_a_plain_application) {
    change([](Conditions& conditions) { conditions.release = GetParam(); });
    writePreferences({{"albumNameWork", false}, {"showVideos", false}, {"showDeleted", false}});
    start(host::plain);
    std::vector<std::string> listed;
    for (const auto& row : plain::listPicker())
        listed.push_back(row.at("title"));
    const bool lists = coreFoundationVersion(GetParam()) < ios11;
    EXPECT_EQ(std::ranges::count(listed, "Work"), lists ? 1 : 0);
    EXPECT_EQ(listed.front() == "Pets", !lists); // copies are in front
    EXPECT_EQ(std::ranges::count(listed, "Videos"), 0);
    // The trash is known by a method of iOS 9.
    EXPECT_EQ(std::ranges::count(listed, "Recently Deleted"), GetParam() == Release::ios8_4 ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(All, Releases,
                         testing::Values(Release::ios8_4, Release::ios9_3, Release::ios10_1, Release::ios10_2,
                                         Release::ios10_3, Release::ios11_4, Release::ios12_4));

} // namespace
} // namespace simulator::test
