// The album with which the Camera starts, and the folder that SpringBoard makes for the state files.
#import "UIKit/UIKit.h"

#include "hosts/applications/camera/camera_app.h"
#include "support/environment.h"
#include "support/library_fixture.h"

#include <gtest/gtest.h>

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
    return [[static_cast<UILabel*>([bar viewWithTag:albumLabel]) text] UTF8String];
}

struct AlbumCase {
    std::optional<json> stored;
    bool remember;
    const char* expected;
};

std::ostream& operator<<(std::ostream& out, const AlbumCase& each) {
    return out << (each.stored ? each.stored->dump() : "nothing") << (each.remember ? " remembered" : "");
}

class InitialAlbum : public LibraryTest, public testing::WithParamInterface<AlbumCase> {};

TEST_P(InitialAlbum, is_the_stored_one_if_wanted_and_there) {
    if (GetParam().stored) device().writePropertyList(file::cameraAlbum, *GetParam().stored);
    writePreferences({{"rememberDefault", GetParam().remember}});
    start(host::camera);
    EXPECT_EQ(selectedAlbum(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Stored, InitialAlbum,
    testing::Values(AlbumCase{json{"Family"}, true, "Family"}, AlbumCase{json{"Family"}, false, cameraRoll},
                    AlbumCase{json{"Family", "Work"}, true, "Family"},
                    AlbumCase{json{"Nowhere"}, true, cameraRoll}, AlbumCase{json{"family"}, true, cameraRoll},
                    AlbumCase{json{cameraRoll}, true, cameraRoll},
                    AlbumCase{json{"Videos"}, true, cameraRoll}, AlbumCase{std::nullopt, true, cameraRoll},
                    AlbumCase{json::array(), true, cameraRoll}, AlbumCase{json{5}, true, cameraRoll},
                    AlbumCase{json::array({json::array({"Family"})}), true, cameraRoll},
                    AlbumCase{json::object({{"Family", 1}}), true, cameraRoll},
                    AlbumCase{json("Family"), true, cameraRoll}));

class DamagedAlbumFile : public LibraryTest, public testing::WithParamInterface<std::string_view> {};

TEST_P(DamagedAlbumFile, leaves_the_camera_without_an_album) {
    writePreferences({{"rememberDefault", true}});
    device().writeFile(file::cameraAlbum, GetParam());
    start(host::camera);
    EXPECT_EQ(selectedAlbum(), cameraRoll);
}

INSTANTIATE_TEST_SUITE_P(Contents, DamagedAlbumFile,
                         testing::Values("", "Family", "<plist version=\"1.0\"><array><string>Fam",
                                         "bplist00\xFF\xFF\xFF\xFF"));

class CameraStart : public LibraryTest {};

TEST_F(CameraStart, is_not_confused_by_an_album_without_a_title) {
    library().addAlbum(std::nullopt);
    library().addAlbum("Last");
    writePreferences({{"rememberDefault", true}});
    device().writePropertyList(file::cameraAlbum, {"Last"});
    start(host::camera);
    EXPECT_EQ(selectedAlbum(), "Last");
}

TEST_F(CameraStart, does_not_remember_unless_told_to) {
    device().writePropertyList(file::cameraAlbum, {"Family"});
    start(host::camera);
    EXPECT_EQ(selectedAlbum(), cameraRoll);
    reloadPreferences({{"rememberDefault", true}});
    EXPECT_EQ(selectedAlbum(), cameraRoll) << "the album is chosen at start alone";
}

// The state folder.

class StateFolder : public LibraryTest {
  protected:
    bool isThere() { return std::filesystem::is_directory(device().onLinux(file::stateFolder)); }
};

TEST_F(StateFolder, is_made_by_SpringBoard_alone) {
    startProcess(host::photos).stop();
    startProcess(host::camera).stop();
    EXPECT_FALSE(isThere());
    start(host::springBoard);
    EXPECT_TRUE(isThere());
}

TEST_F(StateFolder, is_not_made_by_a_switched_off_library) {
    writePreferences({{"enabled", false}});
    start(host::springBoard);
    EXPECT_FALSE(isThere());
}

TEST_F(StateFolder, is_left_as_it_is) {
    lockAlbums({"Work"});
    start(host::springBoard);
    EXPECT_EQ(lockedAlbums(), std::vector<std::string>{"Work"});
}

TEST_F(StateFolder, is_made_below_the_working_directory) {
    const std::filesystem::path elsewhere = device().folder() / "elsewhere";
    std::filesystem::create_directory(elsewhere);
    const Host springBoard({.bundleIdentifier = host::springBoard,
                            .device = device().folder(),
                            .library = libraryFile(),
                            .beforeLoading = [&] { std::filesystem::current_path(elsewhere); }});
    EXPECT_TRUE(std::filesystem::is_directory(elsewhere / "var/mobile/Library/rollkeeper"));
    EXPECT_FALSE(isThere());
}

} // namespace
} // namespace simulator::test
