// State files: written by SpringBoard alone, read by everybody.
#include "hosts/applications/camera/camera_app.h"
#include "support/photos_fixture.h"

#include <atomic>
#include <set>
#include <thread>

// What the library adds to the platform's class.
@interface CAMBottomBar (Added)
- (void)chooseAlbum;
@end

namespace simulator::test {
namespace {

using nlohmann::json;
using Titles = std::vector<std::string>;

json message(const char* name, const json& userInfo) {
    json request = {
        {"do", "sendMessage"}, {"centre", "com.nrv.rollkeeper"}, {"name", name}, {"unlock", true}};
    if (!userInfo.is_null()) request["userInfo"] = userInfo;
    return request;
}

json saveRequest(const json& array, const json& path) {
    return message("savearray", {{"id", "com.example.plain"}, {"array", array}, {"path", path}});
}

class StateFiles : public PhotosTest {
  protected:
    // Opens Photos, where tapping the lock of an album asks no questions.
    void startPhotos() { openAlbumList({{"passOption", 2}}); }
    void toggleLock(const std::string& title) {
        photos::openAlbumList();
        [contentView(title) lockAlbum];
    }
    bool isStored(const std::string& path, const char* title) {
        return device().exists(path) && device().readPropertyList(path) == json::array({title});
    }
    bool areLocked(const Titles& titles) { return lockedAlbums() == titles; }
};

TEST_F(StateFiles, an_album_locked_in_photos_is_locked_for_others) {
    change([](Conditions& conditions) { conditions.release = Release::ios11_4; });
    HostProcess plain = startProcess(host::plain);
    const auto lists = [&](const char* title) {
        const json listed = plain.call("listPicker");
        for (const json& each : listed)
            if (each.at("title") == title) return true;
        return false;
    };
    EXPECT_TRUE(lists("Family"));
    startSpringBoard();
    startPhotos();
    waitFor([&] { return areLocked({}); }); // the album list has made the missing list
    toggleLock("Family");
    waitFor([&] { return areLocked({"Family"}); });
    toggleLock("Holidays");
    waitFor([&] { return areLocked({"Family", "Holidays"}); });
    toggleLock("Family");
    waitFor([&] { return areLocked({"Holidays"}); });
    EXPECT_EQ(plain.call("ready").at("release"), "11.4") << "readers go on";
}

TEST_F(StateFiles, the_album_list_makes_the_missing_list_of_locked_albums) {
    startSpringBoard();
    startPhotos();
    waitFor([&] { return areLocked({}); });
}

// On a device both names lead to one file; without the link they part.
TEST_F(StateFiles, albums_of_the_camera_are_written_by_the_full_name_of_var_and_read_by_the_short_one) {
    const std::string fullName = std::string("/private") + file::cameraAlbum;
    std::filesystem::remove(device().onLinux("/private/var"));
    device().writePropertyList(fullName, json::array({"Work"}));
    writePreferences({{"rememberDefault", true}});
    startSpringBoard();
    device().writePropertyList(file::cameraAlbum, json::array({"Family"}));
    start(host::camera);
    UIView* bar = [camera::viewfinder() bottomBar];
    [bar layoutSubviews];
    EXPECT_EQ(text([static_cast<UILabel*>([bar viewWithTag:78]) text]), "Family");
    [[camera::viewfinder() bottomBar] chooseAlbum];
    tapAlertAction("Pets");
    waitFor([&] { return isStored(fullName, "Pets"); });
    EXPECT_TRUE(isStored(file::cameraAlbum, "Family"));
}

TEST_F(StateFiles, readers_see_whole_lists_while_two_senders_write) {
    constexpr std::size_t length = 500;
    startSpringBoard();
    lockAlbums(Titles(length, "before"));
    std::atomic<int> writing = 2;
    std::vector<std::thread> senders;
    for (const char* application : {host::plain, host::settings})
        senders.emplace_back([&, application] {
            HostProcess sender = startProcess(application);
            for (int turn = 0; turn < 8; ++turn)
                sender.call(saveRequest(json(Titles(length, application)), file::lockedAlbums));
            --writing;
        });
    std::set<std::string> seen;
    const auto readWhole = [&] {
        const Titles titles = lockedAlbums().value();
        EXPECT_EQ(titles.size(), length);
        EXPECT_EQ(std::ranges::count(titles, titles.front()), std::ptrdiff_t(length));
        seen.insert(titles.front());
    };
    waitFor([&] {
        readWhole();
        return writing == 0 && seen.contains(host::plain) && seen.contains(host::settings);
    });
    for (std::thread& sender : senders)
        sender.join();
}

TEST_F(StateFiles, requests_that_make_no_sense_harm_nobody) {
    const json array = {"Work"};
    const json nonsense[] = {
        message("savearray", json()),
        message("savearray", json::object()),
        message("savearray", {{"path", file::lockedAlbums}}),
        message("savearray", {{"array", array}}),
        message("loadarray", {{"array", array}, {"path", file::lockedAlbums}}),
        saveRequest(5, file::lockedAlbums),
        saveRequest(array, 7),
        saveRequest(array, array),
        saveRequest(array, ""),
        saveRequest(array, "/"),
        saveRequest(array, file::stateFolder),
        saveRequest(array, "/no/such/folder/list.plist"),
    };
    HostProcess& springBoard = startSpringBoard();
    HostProcess sender = startProcess(host::plain);
    for (const json& request : nonsense) {
        SCOPED_TRACE(request.dump());
        EXPECT_TRUE(sender.call(request).at("sent"));
        EXPECT_EQ(springBoard.call("ready").at("release"), "10.3");
    }
    EXPECT_EQ(lockedAlbums(), std::nullopt);
    sender.call(message("savearray", {{"array", array}, {"path", file::lockedAlbums}}));
    waitFor([&] { return areLocked({"Work"}); }); // the server goes on
}

TEST_F(StateFiles, a_failed_write_leaves_the_file_as_it_was) {
    lockAlbums({"Work"});
    HostProcess& springBoard = startSpringBoard();
    HostProcess sender = startProcess(host::plain);
    change([](Conditions& conditions) { conditions.faults.diskFull = true; });
    sender.call(saveRequest({"Family"}, file::lockedAlbums));
    for (int turn = 0; turn < 20; ++turn)
        EXPECT_EQ(springBoard.call("ready").at("release"), "10.3");
    EXPECT_EQ(lockedAlbums(), Titles{"Work"});
    change([](Conditions& conditions) { conditions.faults.diskFull = false; });
    sender.call(saveRequest({"Pets"}, file::lockedAlbums));
    waitFor([&] { return areLocked({"Pets"}); });
}

// Nothing is written, and Photos goes on.
TEST_F(StateFiles, requests_that_nobody_serves_are_lost) {
    startPhotos();
    const auto expectLoss = [&](const char* reason) {
        SCOPED_TRACE(reason);
        toggleLock("Work");
        settle();
        EXPECT_EQ(lockedAlbums(), std::nullopt);
        EXPECT_TRUE([photos::openAlbumList() isViewLoaded]);
    };
    expectLoss("SpringBoard does not run");
    {
        HostProcess springBoard = startProcess(host::springBoard, false);
        expectLoss("SpringBoard runs without the library");
    }
    writePreferences({{"enabled", false}});
    HostProcess& switchedOff = startSpringBoard();
    expectLoss("the library was switched off as SpringBoard started");
    switchedOff.kill();
    writePreferences(json::object());
    HostProcess& springBoard = startSpringBoard();
    std::filesystem::remove_all(device().onLinux(file::stateFolder));
    expectLoss("the state folder has gone");
    EXPECT_FALSE(device().exists(file::stateFolder)) << "the folder is made at the start alone";
    EXPECT_TRUE(springBoard.isRunning());
    springBoard.kill();
    expectLoss("SpringBoard has ended");
}

} // namespace
} // namespace simulator::test
