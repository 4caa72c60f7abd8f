// The album pickers of Messenger, WhatsApp, imgur and Settings.
#import "filtering/filtering_test.h"
#import "filtering/literal_collections.h"
#import "hosts/applications/messenger/messenger_app.h"
#import "hosts/applications/settings/settings_app.h"

// Answers another time from another list.
@interface AlternatingAlbums : MNPhotosAlbumDataSource {
  @public
    NSArray* lists;
    NSUInteger calls;
}
@end

@implementation AlternatingAlbums

- (NSInteger)numberOfAlbums {
    [_albums release];
    _albums = [[lists objectAtIndex:calls++ % [lists count]] retain];
    return static_cast<NSInteger>([_albums count]);
}

@end

// Hands out new cells only, and keeps them.
@interface CellRecorder : UITableView {
  @public
    NSMutableArray* cells;
}
@end

@implementation CellRecorder

- (id)dequeueReusableCellWithIdentifier:(NSString*)identifier {
    [cells addObject:[[[MNMontageAlbumCell alloc] initWithStyle:UITableViewCellStyleDefault
                                                reuseIdentifier:identifier] autorelease]];
    return [cells lastObject];
}

@end

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
            setPreferences(preferences);
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

TEST_F(Pickers, messenger_hands_out_the_second_album_unless_the_first_is_locked) {
    lockAlbums({"Work"});
    startComplete(host::messenger);
    PHAssetCollection* work = album(@"Work");
    PHAssetCollection* pets = album(@"Pets");
    AlternatingAlbums* source = [[[AlternatingAlbums alloc] init] autorelease];
    forEachSetting({}, [&](bool, bool) {
        source->lists = @[ @[ work ], @[ pets ] ];
        EXPECT_TRUE([source albumAtIndex:0] == nil);
        source->lists = @[ @[ pets ], @[ work ] ];
        source->calls = 0;
        EXPECT_TRUE([source albumAtIndex:0] == work);
        EXPECT_EQ(source->calls, 2U);
        source->calls = 0;
        EXPECT_TRUE([source albumAtIndex:1] == nil);
    });
}

TEST_F(Pickers, messenger_opens_no_album_while_locked_ones_are_hidden_and_clears_the_first_cell) {
    lockAlbums({"Work"});
    startComplete(host::messenger);
    MNMontageAlbumListViewController* list = [messenger::application() montageAlbumList];
    CellRecorder* table = [[[CellRecorder alloc] initWithFrame:CGRectZero
                                                         style:UITableViewStylePlain] autorelease];
    forEachSetting({}, [&](bool enabled, bool hidesLocked) {
        for (const auto& row : messenger::listMontage())
            EXPECT_EQ(row.at("opens"), !(enabled && hidesLocked)) << row;
        for (NSInteger row = 0; row < [list tableView:table numberOfRowsInSection:0]; ++row) {
            table->cells = [NSMutableArray array];
            MNMontageAlbumCell* cell = (id)[list tableView:table
                                     cellForRowAtIndexPath:[NSIndexPath indexPathForRow:row inSection:0]];
            ASSERT_EQ([table->cells count], 2U);
            MNMontageAlbumCell* first = [table->cells objectAtIndex:0];
            EXPECT_TRUE(cell == [table->cells objectAtIndex:1]);
            const bool isLocked = text([[cell textLabel] text]) == "Work";
            EXPECT_EQ([first asset] != nil, !isLocked && [cell asset] != nil);
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
