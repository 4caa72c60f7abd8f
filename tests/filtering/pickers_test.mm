// The album pickers of Messenger, WhatsApp, imgur and Settings.
#import "filtering/filtering_fixture.h"
#import "hosts/applications/messenger/messenger_app.h"
#import "hosts/applications/settings/settings_app.h"

#include "support/replacing.h"

namespace simulator::test {
namespace {

class Pickers : public FilteringTest {
  protected:
    void forEachSetting(nlohmann::json preferences,
                        const std::function<void(bool enabled, bool hidesLocked)>& compare) {
        for (const int bits : {0, 1, 2, 3}) {
            SCOPED_TRACE(bits);
            preferences["enabled"] = (bits & 1) != 0;
            preferences["hideLockedFromApps"] = (bits & 2) != 0;
            reloadPreferences(preferences);
            compare(bits & 1, bits & 2);
        }
    }
    static std::vector<NSInteger> smartAlbums() {
        std::vector<NSInteger> subtypes;
        for (PHAssetCollection* each in albums(PHAssetCollectionTypeSmartAlbum))
            subtypes.push_back([each assetCollectionSubtype]);
        return subtypes;
    }
};

// Messenger's own methods: one that answers every other time from the other album, and one whose cells are
// kept.

PHAssetCollection* alternating[2];
int albumCalls;

id albumAtIndex(id, SEL, NSInteger) { return alternating[albumCalls++ % 2]; }

NSMutableArray* cells;
id (*originalCell)(id, SEL, id, id);

id cellForRow(id self, SEL command, id table, id path) {
    const id cell = originalCell(self, command, table, path);
    [cells addObject:cell];
    return cell;
}

TEST_F(Pickers, messenger_hands_out_the_second_album_unless_the_first_is_locked) {
    id (*unused)(id, SEL, NSInteger);
    lockAlbums({"Work"});
    startComplete(host::messenger, [&] {
        replaceMethod("MNPhotosAlbumDataSource", @selector(albumAtIndex:), &albumAtIndex, &unused);
    });
    MNPhotosAlbumDataSource* source = [[[MNPhotosAlbumDataSource alloc] init] autorelease];
    alternating[0] = album(@"Work");
    alternating[1] = album(@"Pets");
    forEachSetting({}, [&](bool, bool) {
        albumCalls = 0;
        EXPECT_TRUE([source albumAtIndex:0] == nil);
        albumCalls = 1;
        EXPECT_TRUE([source albumAtIndex:0] == alternating[0]);
        EXPECT_EQ(albumCalls, 3);
    });
}

TEST_F(Pickers, messenger_opens_no_album_while_locked_ones_are_hidden_and_clears_the_first_cell) {
    lockAlbums({"Work"});
    startComplete(host::messenger, [] {
        replaceMethod("MNMontageAlbumListViewController", @selector(tableView:cellForRowAtIndexPath:),
                      &cellForRow, &originalCell);
    });
    MNMontageAlbumListViewController* list = messenger::montage();
    UITableView* table = [[[UITableView alloc] init] autorelease]; // reuses no cell
    forEachSetting({}, [&](bool enabled, bool hidesLocked) {
        for (const auto& row : messenger::listMontage())
            EXPECT_EQ(row.at("opens"), !(enabled && hidesLocked)) << row;
        for (NSInteger row = 0; row < [list tableView:table numberOfRowsInSection:0]; ++row) {
            cells = [NSMutableArray array];
            NSIndexPath* path = [NSIndexPath indexPathForRow:row inSection:0];
            MNMontageAlbumCell* cell = (id)[list tableView:table cellForRowAtIndexPath:path];
            ASSERT_EQ([cells count], 2U);
            EXPECT_TRUE(cell == [cells objectAtIndex:1]);
            const bool isLocked = text([[cell textLabel] text]) == "Work";
            EXPECT_EQ([[cells objectAtIndex:0] asset] != nil, !isLocked && [cell asset] != nil);
            EXPECT_TRUE(!isLocked || [cell asset] != nil);
        }
    });
}

TEST_F(Pickers, whatsapp_leaves_out_what_is_switched_off_while_locked_albums_are_hidden) {
    lockAlbums({"Videos", "Selfies", "Work"});
    startComplete(host::whatsApp);
    const std::vector<NSInteger> all = smartAlbums();
    EXPECT_EQ(all.size(), 17U);
    for (const StockSmartAlbum& off : stockSmartAlbums)
        forEachSetting({{[off.key UTF8String], false}, {"showDeleted", false}}, [&](bool, bool hidesLocked) {
            std::vector<NSInteger> expected = all;
            if (hidesLocked) std::erase(expected, off.subtype);
            EXPECT_EQ(smartAlbums(), expected) << text(off.key);
            EXPECT_EQ([albums() count], 4U);
        });
}

TEST_F(Pickers, imgur_includes_moved_photos_everywhere) {
    lockAlbums({"Holidays"});
    library().setHidden(library().assets().front().identifier, true);
    startComplete(host::imgur);
    forEachSetting({}, [&](bool, bool) {
        PHAssetCollection* cameraRoll = [albums(PHAssetCollectionTypeSmartAlbum, 209) firstObject];
        EXPECT_EQ([[PHAsset fetchAssetsInAssetCollection:cameraRoll options:nil] count], 10U);
        EXPECT_EQ([[PHAsset fetchAssetsInAssetCollection:album(@"Holidays") options:nil] count], 3U);
        PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
        [PHAsset fetchAssetsInAssetCollection:cameraRoll options:options];
        EXPECT_TRUE([options includeHiddenAssets]);
    });
}

TEST_F(Pickers, wallpapers_are_chosen_from_the_real_albums) {
    change([](Conditions& conditions) { conditions.release = Release::ios11_4; });
    lockAlbums({"Work"});
    writePreferences({{"albumNamePets", false}});
    start(host::settings);
    std::vector<std::string> titles;
    for (const auto& row : settings::listWallpapers())
        if (row.at("kind") == "album") titles.push_back(row.at("title"));
    EXPECT_EQ(titles, (std::vector<std::string>{"Holidays", "Family"}));
}

} // namespace
} // namespace simulator::test
