// The library's collection lists against those of the literal algorithm: random libraries, settings, locked
// lists, versions and lists, in every kind of process.
#import "filtering/filtering_test.h"
#import "filtering/literal_collections.h"

#import "CoreFoundation/CoreFoundation.h"
#import "device/json_objects.h"
#import "hosts/applications/common/screen.h"

#include "support/environment.h"

#include <gmock/gmock.h>

#include <random>

namespace simulator::test {
namespace {

constexpr int listsInRound = 8;
// Of albums; some are also labels of smart albums.
const std::vector<std::optional<std::string>> titles = {
    "Holidays", "Family", "Videos", "Selfies", "", std::nullopt, "Tom's \"best\" \U0001F389", "albumName"};
constexpr double versions[] = {847.24, 1349.56, 1442.99, ios11, ios11, 1443.01, 1575.17};

int rounds() { return configuration() == "release" ? 150 : 10; }

class Sameness : public FilteringTest, public testing::WithParamInterface<const char*> {
  protected:
    std::size_t below(std::size_t limit) { return m_random() % limit; }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    template <class List> const auto& oneOf(const List& list) { return list[below(std::size(list))]; }

    void beginRound(unsigned seed) {
        m_random.seed(seed);
        rebuildLibrary();
        writeLockedList();
        m_preferences = randomPreferences();
        reload(m_preferences);
        kCFCoreFoundationVersionNumber = oneOf(versions);
    }

    void rebuildLibrary() {
        Change change;
        for (const CollectionKind kind : {CollectionKind::album, CollectionKind::folder})
            for (const Collection& each : library().collections(kind))
                change.add(Change::DeleteCollection{each.identifier});
        Identifiers assets;
        for (const std::string& each : m_assets) {
            change.add(Change::EditAsset{.asset = each, .hidden = oneIn(3), .trashed = oneIn(8)});
            if (oneIn(2)) assets.push_back(each);
        }
        const std::string folder = change.addFolder("Folder");
        for (std::size_t count = below(8); count > 0; --count) {
            std::ranges::shuffle(assets, m_random);
            const std::string album =
                change.addAlbum(oneOf(titles), oneIn(4) ? std::optional(folder) : std::nullopt,
                                oneIn(5) ? 101 : collectionSubtype::regularAlbum);
            change.add(
                Change::AddMembers{album, {assets.begin(), assets.begin() + below(assets.size() + 1)}, {}});
        }
        library().apply(change);
    }

    void writeLockedList() {
        device().remove(file::lockedAlbums);
        if (oneIn(8)) return;
        if (oneIn(8)) return device().writePropertyList(file::lockedAlbums, {{"Family", true}});
        nlohmann::json locked = nlohmann::json::array();
        for (const auto& title : titles)
            if (title && oneIn(3)) locked.push_back(*title);
        for (const StockSmartAlbum& each : stockSmartAlbums)
            if (oneIn(4)) locked.push_back(text(each.label));
        if (oneIn(4)) locked.push_back(7);
        device().writePropertyList(file::lockedAlbums, locked);
    }

    nlohmann::json randomPreferences() {
        nlohmann::json preferences{{"enabled", !oneIn(10)}};
        const auto maybe = [&](const std::string& key) {
            if (oneIn(2)) preferences[key] = oneIn(2);
        };
        for (const char* key : {"hideLockedFromApps", "showDeleted", "showHidden"})
            maybe(key);
        for (const StockSmartAlbum& each : stockSmartAlbums)
            maybe(text(each.key));
        for (const auto& title : titles)
            if (title && oneIn(3)) maybe("albumName" + *title);
        return preferences;
    }

    // Everything that a list may hold, and more.
    NSMutableArray* everything() {
        NSMutableArray* all = [NSMutableArray array];
        for (const auto type : {PHAssetCollectionTypeAlbum, PHAssetCollectionTypeAlbum,
                                PHAssetCollectionTypeSmartAlbum, PHAssetCollectionTypeMoment})
            [all addObjectsFromArray:[albums(type) fetchedObjects]];
        [all addObjectsFromArray:[[PHCollection fetchTopLevelUserCollectionsWithOptions:nil] fetchedObjects]];
        [all addObject:[PHAssetCollection transientAssetCollectionWithAssets:@[] title:@"Family"]];
        for (NSInteger subtype = 200; subtype < 217; ++subtype)
            [all addObject:[FakeCollection collectionOfType:2 subtype:subtype title:@"Videos"]];
        for (NSInteger type = 0; type < 5; ++type)
            [all addObject:[FakeCollection collectionOfType:type subtype:2 title:@"Family"]];
        FakeCollection* trash = [FakeCollection collectionOfType:1 subtype:2 title:nil];
        trash->isTrash = YES;
        UntitledCollection* untitled = [[[UntitledCollection alloc] init] autorelease];
        untitled->type = 1;
        [all addObjectsFromArray:@[
            trash, untitled, [[[UntypedCollection alloc] init] autorelease], @"Family", [NSNull null]
        ]];
        return all;
    }

    NSArray* randomList(NSArray* all) {
        NSMutableArray* list = [NSMutableArray array];
        for (std::size_t count = below(24); count > 0; --count)
            [list addObject:[all objectAtIndex:below([all count])]];
        return list;
    }

    std::vector<std::string> literal(NSArray* (^previous)(), NSArray* listed) {
        const LiteralWorld world{string(GetParam()), kCFCoreFoundationVersionNumber,
                                 static_cast<NSDictionary*>(objectFromJson(m_preferences)), visibility()};
        return describe(literalCollections(previous, world), listed);
    }

    void compareRandomList(NSArray* all) {
        NSArray* listed = randomList(all);
        EXPECT_EQ(filtered(listed), literal(
                                        ^{
                                            return listed;
                                        },
                                        listed));
    }

    // Whose content is made anew at each call.
    void compareFolder() {
        PHCollectionList* folder = [[PHCollectionList fetchCollectionListsWithType:PHCollectionListTypeFolder
                                                                           subtype:PHCollectionListSubtypeAny
                                                                           options:nil] firstObject];
        NSArray* (^content)() = ^{
            return [[PHCollection fetchCollectionsInCollectionList:folder options:nil] fetchedObjects];
        };
        EXPECT_EQ(describe([folder collections], content()), literal(content, content()));
    }

    void rememberAssets() {
        for (const Asset& each : library().assets({.includeHidden = true}))
            m_assets.push_back(each.identifier);
    }

  private:
    std::mt19937 m_random;
    Identifiers m_assets;
    nlohmann::json m_preferences;
};

TEST_P(Sameness, of_collections_and_the_literal_algorithm) {
    startComplete(GetParam());
    rememberAssets();
    for (int round = 0; round < rounds() && !HasFailure(); ++round) {
        SCOPED_TRACE("seed " + std::to_string(round));
        @autoreleasepool {
            beginRound(static_cast<unsigned>(round));
            NSArray* all = everything();
            for (int list = 0; list < listsInRound; ++list)
                compareRandomList(all);
            compareFolder();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Hosts, Sameness,
                         testing::Values(host::photos, host::settings, host::plain, host::camera,
                                         host::springBoard, host::messenger, host::whatsApp, host::imgur));

} // namespace
} // namespace simulator::test
