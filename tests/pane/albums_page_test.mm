// The page with a switch for each of the user's albums.
#include "pane/pane_fixture.h"

#include <gmock/gmock.h>

namespace simulator::test {
namespace {

using nlohmann::json;
using testing::HasSubstr;

using AlbumsPage = PaneTest;

TEST_F(AlbumsPage, has_one_switch_for_each_title) {
    const std::vector<std::string> titles = {"Summer \U0001F3D6\uFE0F", "\"Quoted\" & <b>", "a/b\\c",
                                             "albumName", "100 % @"};
    for (const std::string& title : titles)
        library().addAlbum(title);
    library().addAlbum(titles.front());
    library().addAlbum("");
    library().addAlbum(std::nullopt);
    openPane({"Your Albums"});
    for (const std::string& title : titles) {
        EXPECT_EQ(rowsLabelled(title).size(), 1U) << title;
        EXPECT_EQ(valueOf(title), 1);
        settings::setControl(title, false);
        EXPECT_EQ(stored().at("albumName" + title), false);
        EXPECT_EQ(valueOf(title), 0);
    }
    settings::setControl(titles.front(), true);
    EXPECT_EQ(stored().at("albumName" + titles.front()), true) << "a key that goes would leave the album off";
    EXPECT_EQ(rowsLabelled("(no title)").size(), 1U) << "an empty title is one, while nothing is none";
    settings::setControl("(no title)", false);
    EXPECT_EQ(stored().at("albumName"), false);
    EXPECT_EQ(stored().size(), titles.size() + 1);
}

TEST_F(AlbumsPage, lists_what_is_off_and_what_is_locked) {
    change([](Conditions& conditions) { conditions.release = Release::ios11_4; });
    library().addAlbum("Off");
    library().addAlbum("Locked");
    writePreferences({{"albumNameOff", false}});
    lockAlbums({"Locked"});
    openPane({"Your Albums"});
    EXPECT_EQ(valueOf("Off"), 0);
    EXPECT_EQ(valueOf("Locked"), 1);
    EXPECT_THAT(footerOf("Off"), HasSubstr("left out of the album lists"));
}

TEST_F(AlbumsPage, lists_hundreds_and_tells_that_the_system_does_not_obey) {
    for (int number = 0; number < 500; ++number)
        library().addAlbum("Album " + std::to_string(number));
    openPane({"Your Albums"});
    EXPECT_EQ(rowsLabelled("Album 0").size(), 1U);
    EXPECT_THAT(footerOf("Album 0"), HasSubstr("from iOS 11 on"));
    settings::setControl("Album 499", false);
    EXPECT_EQ(stored(), (json{{"albumNameAlbum 499", false}}));
}

TEST_F(AlbumsPage, says_when_there_are_none) {
    Change deletion;
    for (const Collection& album : library().collections(CollectionKind::album))
        deletion.add(Change::DeleteCollection{album.identifier});
    library().apply(deletion);
    openPane({"Your Albums"});
    ASSERT_EQ(rows().size(), 1U) << rows();
    EXPECT_THAT(rows().at(0).at("footer").get<std::string>(), HasSubstr("no albums"));
}

} // namespace
} // namespace simulator::test
