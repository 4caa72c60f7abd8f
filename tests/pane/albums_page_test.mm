// The page with a switch for each of the user's albums.
#include "pane/pane_test.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace simulator::test {
namespace {

using nlohmann::json;
using testing::Contains;
using testing::HasSubstr;

class AlbumsPage : public PaneTest {
  protected:
    void openAlbums() {
        openPane();
        openPage({"Your Albums"});
    }
};

TEST_F(AlbumsPage, HasOneSwitchForEachTitle) {
    const std::vector<std::string> titles = {"Summer \U0001F3D6\uFE0F", "\"Quoted\" & <b>", "a/b\\c",
                                             "albumName", "100 % @"};
    for (const std::string& title : titles)
        library().addAlbum(title);
    library().addAlbum(titles.front());
    openAlbums();
    for (const std::string& title : titles) {
        EXPECT_EQ(std::ranges::count(labels(), title), 1) << title;
        EXPECT_EQ(rowLabelled(title).at("value"), 1);
        settings::setControl(title, false);
        EXPECT_EQ(stored().at("albumName" + title), false);
        EXPECT_EQ(rowLabelled(title).at("value"), 0);
    }
    settings::setControl(titles.front(), true);
    EXPECT_EQ(stored().at("albumName" + titles.front()), true) << "a key that goes would leave the album off";
    EXPECT_EQ(stored().size(), titles.size());
}

TEST_F(AlbumsPage, ListsWhatIsOffAndWhatIsLocked) {
    change([](Conditions& conditions) { conditions.release = Release::ios11_4; });
    library().addAlbum("Off");
    library().addAlbum("Locked");
    writePreferences({{"albumNameOff", false}});
    lockAlbums({"Locked"});
    openAlbums();
    EXPECT_EQ(rowLabelled("Off").at("value"), 0);
    EXPECT_EQ(rowLabelled("Locked").at("value"), 1);
}

TEST_F(AlbumsPage, ListsHundreds) {
    for (int number = 0; number < 500; ++number)
        library().addAlbum("Album " + std::to_string(number));
    openAlbums();
    EXPECT_THAT(labels(), Contains("Album 0"));
    EXPECT_THAT(labels(), Contains("Album 499"));
    settings::setControl("Album 499", false);
    EXPECT_EQ(stored(), (json{{"albumNameAlbum 499", false}}));
}

TEST_F(AlbumsPage, SaysWhenThereAreNone) {
    Change deletion;
    for (const Collection& album : library().collections(CollectionKind::album))
        deletion.add(Change::DeleteCollection{album.identifier});
    library().apply(deletion);
    openAlbums();
    ASSERT_EQ(rows().size(), 1U) << rows();
    EXPECT_THAT(rows().at(0).at("footer").get<std::string>(), HasSubstr("no albums"));
}

TEST_F(AlbumsPage, TellsWhetherTheSystemObeys) {
    openAlbums();
    EXPECT_THAT(rows().at(0).at("footer").get<std::string>(), HasSubstr("from iOS 11 on"));
}

TEST_F(AlbumsPage, TellsWhatANewerSystemLeavesOut) {
    change([](Conditions& conditions) { conditions.release = Release::ios11_4; });
    openAlbums();
    EXPECT_THAT(rows().at(0).at("footer").get<std::string>(), HasSubstr("left out of the album lists"));
}

} // namespace
} // namespace simulator::test
