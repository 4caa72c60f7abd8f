// Answers of the album list that follow the settings, and deleting an album with moved photos.
#include "support/photos_fixture.h"

#include "device/clock.h"

namespace simulator::test {
namespace {

class AlbumListAnswers : public PhotosTest {};

TEST_F(AlbumListAnswers, follow_the_settings_while_enabled) {
    const struct {
        const char* setting;
        bool value;
        json (*answer)(PUAlbumListViewController* list, PHCollection* holidays);
        json expected;
    } cases[] = {
        {"showPeople", false, [](auto* list, auto*) -> json { return [list showPeople] != NO; }, false},
        {"showPlaces", false, [](auto* list, auto*) -> json { return [list showPlaces] != NO; }, false},
        {"layoutShowTitle", false,
         [](auto* list, auto* holidays) -> json { return text([list titleForCollection:holidays]); }, ""},
        {"layoutShowSubtitle", false,
         [](auto* list, auto* holidays) -> json { return text([list subtitleForCollection:holidays]); }, ""},
        {"removeSearch", true, [](auto* list, auto*) -> json { return [list disallowsSearch] != NO; }, true},
    };
    change([](Conditions& conditions) { conditions.release = Release::complete; });
    PUAlbumListViewController* list = openAlbumList();
    PHCollection* holidays = [list collectionAtIndexPath:photos::pathOfAlbum(list, "Holidays")];
    for (const auto& each : cases) {
        SCOPED_TRACE(each.setting);
        reloadPreferences({{"enabled", false}, {each.setting, each.value}});
        const json stock = each.answer(list, holidays);
        EXPECT_NE(stock, each.expected);
        EXPECT_NE([[list indexPathForFirstEditableAlbum] item], 0);
        // With every other setting as far from its default.
        json others = json::object();
        for (const auto& other : cases)
            others[other.setting] = other.value;
        others[each.setting] = !each.value;
        reloadPreferences(others);
        EXPECT_EQ(each.answer(list, holidays), stock);
        reloadPreferences({{each.setting, each.value}});
        EXPECT_EQ(each.answer(list, holidays), each.expected);
        EXPECT_EQ([[list indexPathForFirstEditableAlbum] item], 0);
    }
}

TEST_F(AlbumListAnswers, search_and_people_disappear_from_the_screen) {
    openAlbumList({{"removeSearch", true}, {"showPeople", false}});
    EXPECT_FALSE(lists("People"));
    EXPECT_TRUE([[[photos::albumList() navigationItem] rightBarButtonItems] count] == 1);
}

TEST_F(AlbumListAnswers, list_is_reloaded_twice_after_a_change_of_size) {
    useManualClock();
    PUAlbumListViewController* list = openAlbumList();
    const std::size_t timers = clock().pendingTimers();
    [list viewWillTransitionToSize:CGSizeMake(667, 375) withTransitionCoordinator:nil];
    EXPECT_EQ(clock().pendingTimers(), timers + 2);
    for (const auto& [album, almost] : {std::pair{"New", 0.19}, {"Newer", 0.28}}) {
        library().addAlbum(album);
        clock().advance(almost);
        EXPECT_FALSE(lists(album));
        clock().advance(0.02);
        EXPECT_TRUE(lists(album));
    }
}

// Holidays holds photos 0 to 2, the last of which is in Family, too; all are moved out of the Camera Roll.
class AlbumDeletion : public PhotosTest {
  protected:
    void startEditing(const json& preferences = {}, const Texts& locked = {}) {
        hide({0, 1, 2, 6});
        openAlbumList(preferences, locked);
        photos::setEditing(true);
    }
    void deleteAlbum(const std::string& title, bool atOnce = true) {
        photos::tapDeleteAlbum(title);
        settle(); // Touch ID
        tapAlertAction("Delete Album");
        settle();
        EXPECT_NE(library().albumTitled(title).has_value(), atOnce);
    }
    void pass(double seconds) {
        clock().advance(seconds);
        settle();
    }
    void endEditing(const Numbers& hiddenAfterwards) {
        photos::setEditing(false);
        settle();
        EXPECT_EQ(hiddenNumbers(), hiddenAfterwards);
    }
};

TEST_F(AlbumDeletion, returns_photos_of_no_other_album_when_editing_ends) {
    startEditing();
    deleteAlbum("Holidays");
    [photos::albumList() setEditing:YES animated:NO];
    settle();
    EXPECT_EQ(hiddenNumbers(), (Numbers{0, 1, 2, 6})) << "returned before editing ended";
    endEditing({2, 6});
}

TEST_F(AlbumDeletion, that_is_cancelled_returns_nothing) {
    useManualClock();
    startEditing();
    photos::tapDeleteAlbum("Holidays");
    tapAlertAction("Cancel");
    endEditing({0, 1, 2, 6});
    pass(1.1);
    photos::setEditing(true);
    endEditing({0, 1, 2, 6});

    Change deletion;
    deletion.add(Change::DeleteCollection{library().albumTitled("Holidays")->identifier});
    library().apply(deletion);
    photos::setEditing(true);
    endEditing({0, 1, 2, 6}); // a delete is not carried that far
    pass(5);
    EXPECT_EQ(hiddenNumbers(), (Numbers{0, 1, 2, 6}));
}

// Editing ends at once, and a second time three seconds later.
struct DeletionTime {
    double seconds;
    Numbers hiddenAfterOneSecond;
    Numbers hiddenInTheEnd;
};

class SlowDeletion : public AlbumDeletion, public testing::WithParamInterface<DeletionTime> {};

TEST_P(SlowDeletion, returns_photos_once_the_album_has_gone) {
    change([](Conditions& conditions) { conditions.albumDeletionTime = GetParam().seconds; });
    useManualClock();
    startEditing();
    deleteAlbum("Holidays", false);
    endEditing({0, 1, 2, 6});
    pass(0.9);
    EXPECT_EQ(hiddenNumbers(), (Numbers{0, 1, 2, 6}));
    pass(0.2);
    EXPECT_EQ(hiddenNumbers(), GetParam().hiddenAfterOneSecond);
    pass(1.8);
    photos::setEditing(true);
    settle();
    pass(0.1);
    endEditing(GetParam().hiddenInTheEnd);
    pass(5);
    EXPECT_EQ(hiddenNumbers(), GetParam().hiddenInTheEnd);
}

INSTANTIATE_TEST_SUITE_P(Libraries, SlowDeletion,
                         testing::Values(DeletionTime{0.5, {2, 6}, {2, 6}},     // before the second look
                                         DeletionTime{2, {0, 1, 2, 6}, {2, 6}}, // before the last look
                                         DeletionTime{4, {0, 1, 2, 6}, {0, 1, 2, 6}})); // taken for cancelled

TEST_F(AlbumDeletion, of_a_second_album_forgets_the_first_and_happens_once) {
    startEditing();
    deleteAlbum("Holidays");
    deleteAlbum("Work");
    endEditing({0, 1, 2});
    hide({6});
    photos::setEditing(true);
    endEditing({0, 1, 2, 6});
    photos::setEditing(true);
    deleteAlbum("Pets"); // which is empty
    endEditing({0, 1, 2, 6});
}

// The look one second after the end of editing is for the delete of before.
TEST_F(AlbumDeletion, that_follows_at_once_waits_for_its_own_end_of_editing) {
    useManualClock();
    change([](Conditions& conditions) { conditions.albumDeletionTime = 0.2; });
    startEditing();
    photos::tapDeleteAlbum("Holidays");
    tapAlertAction("Cancel");
    endEditing({0, 1, 2, 6});
    photos::setEditing(true);
    deleteAlbum("Work", false);
    pass(1.1);
    EXPECT_EQ(hiddenNumbers(), (Numbers{0, 1, 2, 6})) << "returned before editing ended";
    endEditing({0, 1, 2});
}

TEST_F(AlbumDeletion, of_a_locked_album_asks_for_authorisation_each_time) {
    startEditing({{"passOption", 2}}, {"Holidays"});
    photos::tapDeleteAlbum("Holidays");
    EXPECT_EQ(alertTitle(), "Delete “Holidays”");
    tapAlertAction("Cancel");
    reloadPreferences({{"passOption", 1}});
    photos::tapDeleteAlbum("Holidays");
    EXPECT_TRUE(isAskedForPassword());
    tapAlertAction("Cancel");
    reloadPreferences({{"passOption", 0}});
    deleteAlbum("Holidays");
    endEditing({2, 6});
}

} // namespace
} // namespace simulator::test
