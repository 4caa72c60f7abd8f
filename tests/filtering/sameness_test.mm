// The library's collection lists against those of the literal algorithm: random libraries, settings, locked
// lists, versions and lists, in every kind of process.
#import "CoreFoundation/CoreFoundation.h"
#import "device/json_objects.h"
#import "filtering/filtering_fixture.h"
#import "filtering/literal_collections.h"

#include "support/environment.h"

#include <random>

namespace simulator::test {
namespace {

constexpr int listsInRound = 8;
constexpr double versions[] = {847.24, 1349.56, 1442.99, ios11, ios11, 1443.01, 1575.17};
// Of albums; some are also labels of smart albums.
const std::vector<std::optional<std::string>> titles = {
    "Holidays", "Family", "Videos", "Selfies", "", std::nullopt, "Tom's \"best\" \U0001F389", "albumName"};

int rounds() { return configuration() == "release" ? 80 : 20; }

// A number says which of the listed it is, a title with photos that it is a copy.
std::vector<std::string> describe(NSArray* answer, NSArray* listed) {
    PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
    [options setIncludeHiddenAssets:YES];
    std::vector<std::string> described;
    for (id each in answer) {
        const NSUInteger index = [listed indexOfObject:each];
        std::string text = index != NSNotFound ? std::to_string(index)
                           : [each title]      ? simulator::text([each title])
                                               : "(untitled)";
        if (index == NSNotFound)
            for (PHAsset* asset in [PHAsset fetchAssetsInAssetCollection:each options:options])
                text += " " + simulator::text([asset localIdentifier]);
        described.push_back(text);
    }
    return described;
}

class Sameness : public FilteringTest, public testing::WithParamInterface<const char*> {
  protected:
    std::size_t below(std::size_t limit) { return m_random() % limit; }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    template <class List> const auto& oneOf(const List& list) { return list[below(std::size(list))]; }

    void beginRound(unsigned seed) {
        m_random.seed(seed);
        rebuildLibrary();
        writeLockedList();
        chooseSettings();
        reloadPreferences(m_preferences);
        kCFCoreFoundationVersionNumber = oneOf(versions);
    }

    void rebuildLibrary() {
        Change change;
        for (const CollectionKind kind : {CollectionKind::album, CollectionKind::folder})
            for (const Collection& each : library().collections(kind))
                change.add(Change::DeleteCollection{each.identifier});
        for (const std::string& each : m_assets)
            change.add(Change::EditAsset{.asset = each, .hidden = oneIn(3), .trashed = oneIn(8)});
        const std::string folder = change.addFolder("Folder");
        for (std::size_t count = below(8); count > 0; --count) {
            std::ranges::shuffle(m_assets, m_random);
            const std::string album =
                change.addAlbum(oneOf(titles), oneIn(4) ? std::optional(folder) : std::nullopt,
                                oneIn(5) ? 101 : collectionSubtype::regularAlbum);
            Identifiers members = m_assets;
            members.resize(below(7));
            change.add(Change::AddMembers{album, members});
        }
        library().apply(change);
    }

    void writeLockedList() {
        nlohmann::json locked = nlohmann::json::array();
        for (const auto& title : titles)
            if (title && oneIn(3)) locked.push_back(*title);
        for (const StockSmartAlbum& each : stockSmartAlbums)
            if (oneIn(4)) locked.push_back(text(each.label));
        if (oneIn(4)) locked.push_back(7);
        if (oneIn(8)) locked = {{"Family", true}};
        device().writePropertyList(file::lockedAlbums, locked);
        if (oneIn(8)) device().remove(file::lockedAlbums);
    }

    void chooseSettings() {
        m_preferences = {{"enabled", !oneIn(10)}};
        const auto maybe = [&](const std::string& key) {
            if (oneIn(2)) m_preferences[key] = oneIn(2);
        };
        for (const char* key : {"hideLockedFromApps", "showDeleted", "showHidden"})
            maybe(key);
        for (const StockSmartAlbum& each : stockSmartAlbums)
            maybe(text(each.key));
        for (const auto& title : titles)
            if (title && oneIn(3)) maybe("albumName" + *title);
        for (const auto& [key, value] : m_preferences.items())
            if (key.starts_with("albumName")) m_visibility[key] = value;
    }

    // Everything that a list may hold, and more.
    static NSArray* everything() {
        NSMutableArray* all = [NSMutableArray arrayWithArray:@[ @"Family", [NSNull null] ]];
        for (const auto type : {PHAssetCollectionTypeAlbum, PHAssetCollectionTypeAlbum,
                                PHAssetCollectionTypeSmartAlbum, PHAssetCollectionTypeMoment})
            [all addObjectsFromArray:[albums(type) fetchedObjects]];
        [all addObjectsFromArray:[[PHCollection fetchTopLevelUserCollectionsWithOptions:nil] fetchedObjects]];
        [all addObject:[PHAssetCollection transientAssetCollectionWithAssets:@[] title:@"Family"]];
        for (const NSInteger first : {200, 1'000'000'200})
            for (NSInteger subtype = first; subtype < first + 17; ++subtype)
                [all addObject:[FakeCollection collectionOfType:2 subtype:subtype title:@"Videos"]];
        for (const char* lacking : {"title", "isTrashBin", "assetCollectionType", "assetCollectionSubtype"})
            for (NSInteger type = 0; type < 5; ++type) {
                FakeCollection* fake = [FakeCollection collectionOfType:type subtype:202 title:@"Family"];
                fake->lacking.insert(lacking);
                [fake setTrashBin:type == 1];
                [all addObject:fake];
            }
        return all;
    }

    void compare(NSArray* answer, NSArray* (^previous)()) {
        const LiteralWorld world{string(GetParam()), kCFCoreFoundationVersionNumber,
                                 objectFromJson(m_preferences), objectFromJson(m_visibility)};
        EXPECT_EQ(describe(answer, previous()), describe(literalCollections(previous, world), previous()));
    }

    void compareRandomList(NSArray* all) {
        NSMutableArray* list = [NSMutableArray array];
        for (std::size_t count = below(24); count > 0; --count)
            [list addObject:[all objectAtIndex:below([all count])]];
        compare(listed(list), ^{
            return static_cast<NSArray*>(list);
        });
    }

    // Whose content is made anew at each call.
    void compareFolder() {
        PHCollectionList* folder = [[PHCollectionList fetchCollectionListsWithType:PHCollectionListTypeFolder
                                                                           subtype:PHCollectionListSubtypeAny
                                                                           options:nil] firstObject];
        compare([folder collections], ^{
            return [[PHCollection fetchCollectionsInCollectionList:folder options:nil] fetchedObjects];
        });
    }

    std::mt19937 m_random;
    Identifiers m_assets;
    nlohmann::json m_preferences;
    nlohmann::json m_visibility = nlohmann::json::object(); // all that were ever read
};

TEST_P(Sameness, of_collections_and_the_literal_algorithm) {
    startComplete(GetParam());
    Identifiers sample;
    for (const Asset& each : library().assets())
        sample.push_back(each.identifier);
    for (int round = 0; round < rounds() && !HasFailure(); ++round)
        @autoreleasepool {
            SCOPED_TRACE("seed " + std::to_string(round));
            m_assets = sample;
            beginRound(static_cast<unsigned>(round));
            NSArray* all = everything();
            for (int list = 0; list < listsInRound; ++list)
                compareRandomList(all);
            compareFolder();
        }
}

INSTANTIATE_TEST_SUITE_P(Hosts, Sameness,
                         testing::Values(host::photos, host::settings, host::plain, host::camera,
                                         host::springBoard, host::messenger, host::whatsApp, host::imgur));

} // namespace
} // namespace simulator::test
