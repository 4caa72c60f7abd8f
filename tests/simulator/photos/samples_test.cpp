// The sample libraries: always the same, and with something of everything.
#include "photolibrary/samples.h"

#include "device/releases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace simulator::test {

namespace {

class SamplesTest : public testing::Test {
  protected:
    SamplesTest() {
        std::string name = (std::filesystem::temp_directory_path() / "photos-XXXXXX").string();
        if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
        m_folder = name;
    }
    ~SamplesTest() override { std::filesystem::remove_all(m_folder); }

    std::unique_ptr<PhotoLibrary> open(const char* name) { return PhotoLibrary::open(m_folder / name); }

  private:
    std::filesystem::path m_folder;
};

/// Nothing when there is no such album.
std::optional<std::size_t> countIn(PhotoLibrary& library, const char* title) {
    const std::optional<Collection> album = library.albumTitled(title);
    if (!album) return std::nullopt;
    return library.countOfAssetsIn(*album);
}

} // namespace

TEST_F(SamplesTest, SmallSampleHoldsWhatItsDescriptionSays) {
    const auto library = open("small");
    addSmallSample(*library);
    EXPECT_EQ(library->visibleAssets().size(), 10u);
    const struct {
        const char* title;
        std::size_t count;
    } albums[] = {{"Holidays", 3}, {"Family", 4}, {"Work", 1}, {"Pets", 0}};
    for (const auto& [title, count] : albums)
        EXPECT_EQ(countIn(*library, title), count) << title;
}

TEST_F(SamplesTest, SampleIsTheSameEveryTime) {
    const auto one = open("one");
    const auto other = open("other");
    for (PhotoLibrary* library : {one.get(), other.get()})
        addSample(*library, {.photos = 500, .albums = 110});
    EXPECT_EQ(one->asJson(), other->asJson());
    EXPECT_EQ(one->asJson()["assets"].size(), 500u);
}

TEST_F(SamplesTest, LargeSampleHasSomethingOfEverything) {
    setCurrentRelease(Release::complete);
    const auto library = open("large");
    addSample(*library, {.photos = 4'000, .albums = 200});
    const Collections albums = library->collections(CollectionKind::album);
    ASSERT_EQ(albums.size(), 200u);
    for (const Collection& album : albums) {
        const Assets members = library->assetsIn(album, {.includeHidden = true});
        EXPECT_GT(members.size(), 10u) << album.identifier;
        EXPECT_LE(members.size(), 20u) << album.identifier;
        EXPECT_EQ(library->countOfAssetsIn(album, {.includeHidden = true}), members.size());
    }
    for (const Collection& smartAlbum : library->collections(CollectionKind::smartAlbum))
        EXPECT_GT(library->countOfAssetsIn(smartAlbum), 0u) << smartAlbum.subtype;
    const auto titled = [&](const auto& matches) { return std::ranges::count_if(albums, matches); };
    EXPECT_EQ(titled([](const Collection& album) { return album.title == "Repeated"; }), 2);
    EXPECT_EQ(titled([](const Collection& album) { return !album.title; }), 2);
    EXPECT_EQ(library->collections(CollectionKind::folder).size(), 1u);
    EXPECT_EQ(library->content(library->collections(CollectionKind::folder)[0].identifier).size(), 20u);
}

} // namespace simulator::test
