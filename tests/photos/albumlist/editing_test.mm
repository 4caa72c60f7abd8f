// Answers of the album list that follow the settings, and deleting an album with moved photos.
#include "support/photos_fixture.h"

#include "device/clock.h"

#include <gmock/gmock.h>

namespace simulator::test {
namespace {

using nlohmann::json;

enum class Answer {
    people,
    places,
    title,
    subtitle,
    noSearch,
    hidesTabBar,
    wantsTabBar,
    firstEditable,
};

json answerOf(PUAlbumListViewController* list, Answer answer) {
    PHCollection* holidays = [list collectionAtIndexPath:photos::pathOfAlbum(list, "Holidays")];
    switch (answer) {
    case Answer::people:
        return [list showPeople] != NO;
    case Answer::places:
        return [list showPlaces] != NO;
    case Answer::title:
        return text([list titleForCollection:holidays]);
    case Answer::subtitle:
        return text([list subtitleForCollection:holidays]);
    case Answer::noSearch:
        return [list disallowsSearch] != NO;
    case Answer::hidesTabBar:
        return [list alwaysHideTabBar] != NO;
    case Answer::wantsTabBar:
        return [list pu_wantsTabBarVisible] != NO;
    case Answer::firstEditable:
        return [[list indexPathForFirstEditableAlbum] item];
    }
    return nullptr;
}

constexpr Answer allAnswers[] = {Answer::people,      Answer::places,       Answer::title,
                                 Answer::subtitle,    Answer::noSearch,     Answer::hidesTabBar,
                                 Answer::wantsTabBar, Answer::firstEditable};

std::map<Answer, json> answersOf(PUAlbumListViewController* list) {
    std::map<Answer, json> answers;
    for (const Answer each : allAnswers)
        answers[each] = answerOf(list, each);
    return answers;
}

json tabs(bool moments, bool memories, bool shared, bool albums) {
    return {{"showTabMoments", moments},
            {"showTabMemories", memories},
            {"showTabShared", shared},
            {"showTabAlbums", albums}};
}

struct OverrideCase {
    json preferences;
    std::map<Answer, json> changes; // against the answers of Photos itself
};

class AlbumListAnswers : public PhotosTest {};

TEST_F(AlbumListAnswers, follow_the_settings_while_enabled) {
    const std::map<Answer, json> oneTab = {{Answer::hidesTabBar, true}, {Answer::wantsTabBar, true}};
    const OverrideCase cases[] = {
        {json::object(), {}},
        {{{"showPeople", false}}, {{Answer::people, false}}},
        {{{"showPlaces", false}}, {{Answer::places, false}}},
        {{{"layoutShowTitle", false}}, {{Answer::title, ""}}},
        {{{"layoutShowSubtitle", false}}, {{Answer::subtitle, ""}}},
        {{{"removeSearch", true}}, {{Answer::noSearch, true}}},
        {tabs(true, false, false, false), oneTab},
        {tabs(false, true, false, false), oneTab},
        {tabs(false, false, true, false), oneTab},
        {tabs(false, false, false, true), oneTab},
        {tabs(false, false, false, false), {}},
        {tabs(false, true, false, true), {}},
        {tabs(true, true, true, true), {}},
    };
    change([](Conditions& conditions) { conditions.release = Release::complete; });
    PUAlbumListViewController* list = openAlbumList();
    reloadPreferences({{"enabled", false}});
    const auto stock = answersOf(list);
    ASSERT_NE(stock.at(Answer::firstEditable), 0);
    for (const OverrideCase& each : cases) {
        json preferences = each.preferences;
        SCOPED_TRACE(preferences.dump());
        auto expected = stock;
        expected[Answer::firstEditable] = 0;
        for (const auto& [answer, value] : each.changes)
            expected[answer] = value;
        reloadPreferences(preferences);
        EXPECT_EQ(answersOf(list), expected);

        preferences["enabled"] = false;
        reloadPreferences(preferences);
        EXPECT_EQ(answersOf(list), stock);
    }
}

TEST_F(AlbumListAnswers, search_and_people_disappear_from_the_screen) {
    openAlbumList({{"removeSearch", true}, {"showPeople", false}});
    for (const auto& row : photos::describeAlbums(photos::albumList()))
        EXPECT_NE(row.at("title"), "People");
    EXPECT_TRUE([[[photos::albumList() navigationItem] rightBarButtonItems] count] == 1);
}

TEST_F(AlbumListAnswers, list_is_reloaded_twice_after_a_change_of_size) {
    change([](Conditions& conditions) { conditions.manualClock = true; });
    PUAlbumListViewController* list = openAlbumList();
    const std::size_t timers = clock().pendingTimers();
    [list viewWillTransitionToSize:CGSizeMake(667, 375) withTransitionCoordinator:nil];
    EXPECT_EQ(clock().pendingTimers(), timers + 2);
    library().addAlbum("New");
    clock().advance(0.19);
    EXPECT_FALSE(lists("New"));
    clock().advance(0.02);
    EXPECT_TRUE(lists("New"));
    library().addAlbum("Newer");
    clock().advance(0.28);
    EXPECT_FALSE(lists("Newer"));
    clock().advance(0.02);
    EXPECT_TRUE(lists("Newer"));
}

// Holidays holds photos 0 to 2, the last of which is in Family, too; all are moved out of the Camera Roll.
class AlbumDeletion : public PhotosTest {
  protected:
    void startEditing(const json& preferences = {}, const std::vector<std::string>& locked = {}) {
        hide({0, 1, 2, 6});
        openAlbumList(preferences, locked);
        photos::setEditing(true);
    }
    void deleteAlbum(const std::string& title) {
        photos::tapDeleteAlbum(title);
        confirm(title);
    }
    void confirm(const std::string& title) {
        tapAlertAction("Delete Album");
        waitFor([&] { return !library().albumTitled(title); });
        settle();
    }
    std::vector<std::size_t> hiddenNumbers() {
        std::vector<std::size_t> hidden;
        for (std::size_t number = 0; number < 10; ++number)
            if (isHidden(number)) hidden.push_back(number);
        return hidden;
    }
    void endEditing(const std::vector<std::size_t>& hiddenAfterwards) {
        photos::setEditing(false);
        host().runUntil([&] { return hiddenNumbers() == hiddenAfterwards; });
        settle();
        EXPECT_EQ(hiddenNumbers(), hiddenAfterwards);
    }
};

TEST_F(AlbumDeletion, returns_photos_of_no_other_album_when_editing_ends) {
    startEditing();
    deleteAlbum("Holidays");
    [photos::albumList() setEditing:YES animated:NO];
    settle();
    EXPECT_TRUE(isHidden(0)) << "returned before editing ended";
    endEditing({2, 6});
}

TEST_F(AlbumDeletion, that_is_cancelled_returns_nothing_ever) {
    startEditing();
    photos::tapDeleteAlbum("Holidays");
    tapAlertAction("Cancel");
    endEditing({0, 1, 2, 6});

    Change deletion;
    deletion.add(Change::DeleteCollection{library().albumTitled("Holidays")->identifier});
    library().apply(deletion);
    photos::setEditing(true);
    endEditing({0, 1, 2, 6}); // a delete is not carried that far
}

TEST_F(AlbumDeletion, of_a_second_album_forgets_the_first) {
    startEditing();
    deleteAlbum("Holidays");
    deleteAlbum("Work");
    endEditing({0, 1, 2});
}

TEST_F(AlbumDeletion, happens_once) {
    startEditing();
    deleteAlbum("Work");
    endEditing({0, 1, 2});
    hide({6});
    photos::setEditing(true);
    endEditing({0, 1, 2, 6});
}

TEST_F(AlbumDeletion, of_an_empty_album_returns_nothing) {
    startEditing();
    deleteAlbum("Pets");
    endEditing({0, 1, 2, 6});
}

TEST_F(AlbumDeletion, of_a_locked_album_goes_on_after_touch_id) {
    startEditing({}, {"Holidays"});
    photos::tapDeleteAlbum("Holidays");
    EXPECT_TRUE(frontAlert() == nil) << "deleted without authorisation";
    waitFor([&] { return frontAlert() != nil; });
    confirm("Holidays");
    endEditing({2, 6});
}

TEST_F(AlbumDeletion, asks_for_authorisation_each_time) {
    startEditing({{"passOption", 2}}, {"Holidays"});
    photos::tapDeleteAlbum("Holidays");
    EXPECT_EQ(alertTitle(), "Delete “Holidays”");
    tapAlertAction("Cancel");
    reloadPreferences({{"passOption", 1}});
    photos::tapDeleteAlbum("Holidays");
    EXPECT_TRUE(isAskedForPassword());
}

} // namespace
} // namespace simulator::test
