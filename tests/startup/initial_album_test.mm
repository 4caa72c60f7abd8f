// The album with which the Camera starts, and the folder that SpringBoard makes for the state files.
#import "UIKit/UIKit.h"

#include "hosts/applications/camera/camera_app.h"
#include "hosts/applications/common/screen.h"
#include "support/environment.h"
#include "support/library_fixture.h"

#include <ostream>

namespace simulator::test {
namespace {

using nlohmann::json;

constexpr const char* cameraRoll = "Camera Roll";

// What the album button of the Camera says.
std::string selectedAlbum() {
    constexpr NSInteger albumLabel = 78;
    UIView* bar = [camera::viewfinder() bottomBar];
    [bar layoutSubviews];
    return text([static_cast<UILabel*>([bar viewWithTag:albumLabel]) text]);
}

struct AlbumCase {
    std::optional<json> stored;
    const char* expected;
    std::optional<bool> remember = true;
    const char* damagedFile = nullptr;
};

std::ostream& operator<<(std::ostream& out, const AlbumCase& each) {
    return out << (each.damagedFile != nullptr ? each.damagedFile : each.stored.value_or("nothing").dump());
}

const AlbumCase albumCases[] = {
    {{{"Family"}}, "Family"},
    {{{"Family"}}, cameraRoll, false},
    {{{"Family"}}, cameraRoll, std::nullopt},
    {{{"Family", "Work"}}, "Family"},
    {{{"Last"}}, "Last"}, // behind an album without a title
    {{{"Nowhere"}}, cameraRoll},
    {{{"family"}}, cameraRoll},
    {{{cameraRoll}}, cameraRoll},
    {{{"Videos"}}, cameraRoll},
    {std::nullopt, cameraRoll},
    {json::array(), cameraRoll},
    {{{5}}, cameraRoll},
    {json::array({json::array({"Family"})}), cameraRoll},
    {json::object({{"Family", 1}}), cameraRoll},
    {json("Family"), cameraRoll},
    {std::nullopt, cameraRoll, true, ""},
    {std::nullopt, cameraRoll, true, "Family"},
    {std::nullopt, cameraRoll, true, "<plist version=\"1.0\"><array><string>Fam"},
    {std::nullopt, cameraRoll, true, "bplist00\xFF\xFF\xFF\xFF"},
};

class InitialAlbum : public LibraryTest, public testing::WithParamInterface<AlbumCase> {};

TEST_P(InitialAlbum, is_the_stored_one_if_wanted_and_there) {
    library().addAlbum(std::nullopt);
    library().addAlbum("Last");
    if (GetParam().stored) device().writePropertyList(file::cameraAlbum, *GetParam().stored);
    if (GetParam().damagedFile != nullptr) device().writeFile(file::cameraAlbum, GetParam().damagedFile);
    if (GetParam().remember) writePreferences({{"rememberDefault", *GetParam().remember}});
    start(host::camera);
    EXPECT_EQ(selectedAlbum(), GetParam().expected);
    device().writePropertyList(file::cameraAlbum, {"Pets"});
    reloadPreferences({{"rememberDefault", true}});
    EXPECT_EQ(selectedAlbum(), GetParam().expected) << "the album is chosen at start alone";
}

INSTANTIATE_TEST_SUITE_P(Stored, InitialAlbum, testing::ValuesIn(albumCases));

class StateFolder : public LibraryTest {
  protected:
    bool isThere() { return std::filesystem::is_directory(device().onLinux(file::stateFolder)); }
};

TEST_F(StateFolder, is_made_by_SpringBoard_alone_and_not_while_switched_off) {
    for (const char* other : {host::photos, host::camera})
        startProcess(other).stop();
    writePreferences({{"enabled", false}});
    startProcess(host::springBoard).stop();
    EXPECT_FALSE(isThere());
    writePreferences({{"enabled", true}});
    start(host::springBoard);
    EXPECT_TRUE(isThere());
}

TEST_F(StateFolder, is_left_as_it_is) {
    lockAlbums({"Work"});
    start(host::springBoard);
    EXPECT_EQ(lockedAlbums(), std::vector<std::string>{"Work"});
}

TEST_F(StateFolder, is_made_below_the_working_directory) {
    const std::filesystem::path elsewhere = device().folder() / "elsewhere";
    std::filesystem::create_directory(elsewhere);
    start(host::springBoard, [&] { std::filesystem::current_path(elsewhere); });
    EXPECT_TRUE(std::filesystem::is_directory(elsewhere / "var/mobile/Library/rollkeeper"));
    EXPECT_FALSE(isThere());
}

} // namespace
} // namespace simulator::test
