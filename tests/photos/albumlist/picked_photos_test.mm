// Photos that were picked for an album and are moved: which ones are hidden, wherever they were picked, and
// out of which album they go.
#include "support/hiding_log.h"
#include "support/photos_fixture.h"

// Screens that show what no tile was made for, or what is no photo.
@interface OneUpWithOtherTile : PUOneUpViewController
@end

@implementation OneUpWithOtherTile

- (id)_currentContentTileController {
    return @"no tile";
}

@end

@interface OneUpWithTileOfNoPhoto : PUOneUpViewController
@end

@implementation OneUpWithTileOfNoPhoto

- (id)_currentContentTileController {
    return [[[PUImageTileViewController alloc] initWithAsset:static_cast<id>(@"no photo")] autorelease];
}

@end

namespace simulator::test {
namespace {

class PickedPhotos : public PhotosTest {
  protected:
    // Without the tab of moments no grid of them is known.
    PUAlbumListViewController* openPhotos(bool withMoments = false) {
        PUAlbumListViewController* list = openAlbumList({{"showTabMoments", withMoments}});
        keepHidingLog(library());
        return list;
    }
    // Of no collection, and kept by its owner only.
    PUPhotosAlbumViewController* makeAlbum() {
        PUPhotosAlbumViewController* album = [[[PUPhotosAlbumViewController alloc] init] autorelease];
        [album setAssetCollection:nil
            fetchResultContainingAssetCollection:nil
                                 filterPredicate:nil
                            existingFetchResults:nil];
        return album;
    }
    void showOneUp(Class cls, std::size_t number) {
        PUBrowsingSession* session = [[[PUBrowsingSession alloc] initWithAsset:asset(number)
                                                                       inTrash:NO] autorelease];
        [[[[cls alloc] initWithBrowsingSession:session] autorelease] viewDidLayoutSubviews];
    }
    static PHAsset* asset(std::size_t number) {
        PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
        [options setIncludeHiddenAssets:YES];
        return [[PHAsset fetchAssetsWithOptions:options] objectAtIndex:number];
    }
    static void pick(PUPhotosGridViewController* grid, std::size_t number) {
        [grid setSelected:YES forAsset:asset(number)];
    }
    static Texts logOfMove(PUAlbumListViewController* list) {
        takeHidingLog();
        [list reloadCameraRollWithMove:YES];
        return takeHidingLog();
    }
};

TEST_F(PickedPhotos, are_hidden_where_they_were_picked) {
    using photos::openAlbum, photos::openMoments, photos::openPhoto, photos::selectPhotos;
    const struct {
        const char* name;
        void (*pick)();
        Texts expected;
    } cases[] = {
        {"moments", [] { selectPhotos(openMoments(), {0, 9}); }, {"hide 0 9"}},
        {"none of moments", [] { tapBarButton("Cancel"); }, {"hide nothing"}},
        {"one-up from moments", [] { openPhoto(openMoments(), 4); }, {"hide nothing"}},
        {"camera roll", [] { selectPhotos(openAlbum("Camera Roll"), {3, 1}); }, {"hide 3 1"}},
        {"the album goes before moments", [] { selectPhotos(openMoments(), {5}); }, {"hide 3 1"}},
        {"an album", [] { selectPhotos(openAlbum("Family"), {1}); }, {"change", "hide 3"}},
        {"stock album", [] { selectPhotos(openAlbum("Videos"), {0}); }, {"change", "hide 7"}},
        {"none of an album", [] { openAlbum("Holidays"); }, {"hide nothing"}},
        {"one-up", [] { openPhoto(openAlbum("Holidays"), 1); }, {"hide 1"}},
        {"one-up of a video", [] { openPhoto(openAlbum("Videos"), 0); }, {"hide 7"}},
    };
    PUAlbumListViewController* list = openPhotos(true);
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        @autoreleasepool {
            each.pick();
        }
        settle();
        takeHidingLog();
        [list reloadCameraRollWithMove:NO];
        EXPECT_EQ(takeHidingLog(), Texts()) << "a copy hides nothing";
        EXPECT_EQ(logOfMove(list), each.expected);
        hideOnly({});
    }
    EXPECT_EQ(numbersIn("Family"), (Numbers{2, 4, 5})) << "what is moved leaves its album";
    EXPECT_EQ(numbersIn("Holidays").size(), 3U);
}

TEST_F(PickedPhotos, of_controllers_that_have_gone_are_not_touched) {
    PUAlbumListViewController* list = openPhotos();
    EXPECT_EQ(logOfMove(list), Texts{"hide unset"}) << "nothing was ever known";
    PUPhotosAlbumViewController* before = makeAlbum();
    pick(before, 2);
    @autoreleasepool {
        pick(makeAlbum(), 3);
    }
    EXPECT_EQ(logOfMove(list), Texts{"hide unset"}) << "what came before the last one does not come back";
    for (int round = 0; round < 3; ++round) { // often at the same address
        @autoreleasepool {
            PUPhotosAlbumViewController* album = makeAlbum();
            EXPECT_EQ(logOfMove(list), Texts{"hide nothing"});
            @autoreleasepool {
                showOneUp([PUOneUpViewController class], 6);
                EXPECT_EQ(logOfMove(list), Texts{"hide 6"});
                for (Class other in @[ [OneUpWithOtherTile class], [OneUpWithTileOfNoPhoto class] ]) {
                    showOneUp(other, 6);
                    EXPECT_EQ(logOfMove(list), Texts{"hide nothing"});
                }
            }
            EXPECT_EQ(logOfMove(list), Texts{"hide nothing"});
            pick(album, 4);
            EXPECT_EQ(logOfMove(list), Texts{"hide 4"}) << "without a collection there is none to leave";
        }
        @autoreleasepool {
            auto grid = [[[PUZoomableGridViewController alloc] init] autorelease];
            [grid viewWillAppear:NO];
            pick(grid, 8);
            EXPECT_EQ(logOfMove(list), Texts{"hide 8"});
        }
        EXPECT_EQ(logOfMove(list), Texts{"hide unset"});
        hideOnly({});
    }
}

// A person leaves something open in one tab and picks in another. Only what is being picked may be hidden, or
// leave an album.
TEST_F(PickedPhotos, are_hidden_whatever_another_tab_has_open) {
    using photos::openAlbum, photos::openMoments, photos::openPhoto, photos::selectPhotos;
    const struct {
        const char* name;
        void (*leaveOpen)();
        void (*pick)();
        Numbers hidden;
        Numbers leavesInFamily;
    } cases[] = {
        {"a photo of an album",
         [] { openPhoto(openAlbum("Holidays"), 1); },
         [] { selectPhotos(openMoments(), {9}); },
         {9},
         {2, 3, 4, 5}},
        {"a selection in an album",
         [] { selectPhotos(openAlbum("Family"), {1, 2}); },
         [] { selectPhotos(openMoments(), {0, 9}); },
         {0, 9},
         {2, 3, 4, 5}},
        {"one of the photos that are picked",
         [] { selectPhotos(openAlbum("Family"), {1, 2}); },
         [] { selectPhotos(openMoments(), {4, 9}); },
         {4},
         {2, 3, 5}},
        {"nothing", [] {}, [] { selectPhotos(openAlbum("Family"), {0}); }, {2}, {3, 5}},
    };
    openPhotos(true);
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        each.leaveOpen();
        each.pick();
        photos::addSelectionToAlbum();
        photos::tapAlbum("Pets");
        tapAlertAction("Move");
        settle();
        EXPECT_EQ(hiddenNumbers(), each.hidden);
        EXPECT_EQ(numbersIn("Family"), each.leavesInFamily);
        hideOnly({});
        waitFor([] { return [photos::library() presentedViewController] == nil; });
    }
}

TEST_F(PickedPhotos, stay_in_their_album_where_nothing_can_be_hidden) {
    change([](Conditions& conditions) { conditions.release = Release::ios8_4; });
    PUAlbumListViewController* list = openAlbumList();
    photos::selectPhotos(photos::openAlbum("Family"), {1});
    [list reloadCameraRollWithMove:YES];
    settle();
    EXPECT_EQ(numbersIn("Family"), (Numbers{2, 3, 4, 5}));
}

} // namespace
} // namespace simulator::test
