// Saving from a share sheet: the album that is asked for afterwards, and what becomes of the saved picture.
#include "capture/capture_fixture.h"

namespace simulator::test {
namespace {

using ShareActivity = CaptureTest;

TEST_F(ShareActivity, puts_the_saved_picture_into_the_album_that_is_picked) {
    open(host::plain);
    recordRequests();
    const Step steps[] = {{"Pets", false, {10}, {}},           {"Pets", true, {10, 11}, {11}},
                          {"Cancel", true, {}, {11}},          {"Work", true, {6, 13}, {11, 13}},
                          {cameraRoll, false, {14}, {11, 13}}, {cameraRoll, true, {14, 15}, {11, 13, 15}}};
    for (const Step& step : steps) {
        setMoves(step.moves);
        save();
        answer(step.album);
        expect(step);
    }
    EXPECT_EQ(library().collections(CollectionKind::album).size(), 5U) << "\"Camera Roll\" was created, once";
    EXPECT_EQ(takeRequests(), std::vector<json>());
}

TEST_F(ShareActivity, leaves_the_picture_where_it_is_when_an_album_is_created) {
    open(host::plain);
    UISaveToCameraRollActivity* activity = save();
    answer("Cancel");
    [activity movePhoto]; // nothing has been picked yet
    settle();
    EXPECT_EQ(library().collections(CollectionKind::album).size(), 4U);
    setMoves(true);
    for (const char* title : {"Garden", ""}) {
        save();
        createAlbum(title);
        settle();
        EXPECT_EQ(hiddenNumbers().size(), *title ? 0U : 1U);
        [activity movePhoto]; // to the last title, which the empty one has not replaced
        settle();
    }
    expect({"Garden", true, {11, 12}, {11, 12}});
}

TEST_F(ShareActivity, asks_as_soon_as_the_save_has_begun_if_a_picture_is_shared) {
    open(host::plain);
    save(0);
    EXPECT_TRUE(frontAlert() == nil);
    save(3);
    EXPECT_EQ(alertTitle(), "Choose Album");
    tapAlertAction("Cancel");
    for (const char* key : {"enabled", "saveActivityEnabled"}) {
        reloadPreferences({{key, false}});
        save();
        EXPECT_TRUE(frontAlert() == nil) << key;
    }
    settle();
    EXPECT_EQ(library().assets().size(), 15U) << "saved all the same";
}

TEST_F(ShareActivity, acts_on_the_newest_photo_of_the_moment) {
    open(host::plain, {{"saveActivityMove", true}});
    whileLibraryIsBusy([&] {
        save();
        tapAlertAction("Pets");
    });
    EXPECT_EQ(library().assets().size(), 10U);
    expect({"Pets", true, {9}, {9}}); // the picture was not there yet
    save();
    library().addAsset({.created = 2'000'000'000});
    answer("Pets");
    expect({"Pets", true, {9, 12}, {9, 12}}); // newer than what was shared
}

} // namespace
} // namespace simulator::test
