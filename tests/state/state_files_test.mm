// State files: written by SpringBoard alone, read by everybody.
#import "CoreFoundation/CoreFoundation.h"
#import "UIKit/ViewTree.h"

#include "hosts/applications/camera/camera_app.h"
#include "hosts/applications/photos/photos_app.h"
#include "support/library_fixture.h"

#include <gmock/gmock.h>

#include <chrono>
#include <thread>

// What the library adds to the platform's classes.
@interface NSObject (AddedByTheLibrary)
- (void)lockAlbum;
- (void)chooseAlbum;
@end

namespace simulator::test {
namespace {

using nlohmann::json;
using Titles = std::vector<std::string>;

json saveRequest(const json& userInfo) {
    return {{"do", "sendMessage"},
            {"centre", "com.nrv.rollkeeper"},
            {"name", "savearray"},
            {"unlock", true},
            {"userInfo", userInfo}};
}

json saveRequest(const json& array, const std::string& path) {
    return saveRequest({{"id", "com.example.plain"}, {"array", array}, {"path", path}});
}

class StateFiles : public LibraryTest {
  protected:
    // Opens Photos, where tapping the lock of an album asks no questions.
    void startPhotos() {
        writePreferences({{"passOption", 2}});
        start(host::photos);
        photos::openAlbumList();
    }
    void toggleLock(const std::string& title) {
        [[photos::albumCell(photos::openAlbumList(), title) albumListCellContentView] lockAlbum];
        host().drain();
    }
    // Without a host in this process.
    bool eventually(const std::function<bool()>& condition) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
        while (!condition() && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return condition();
    }
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
    toggleLock("Family");
    waitFor([&] { return lockedAlbums() == Titles{"Family"}; });
    toggleLock("Holidays");
    waitFor([&] { return lockedAlbums() == Titles{"Family", "Holidays"}; });
    toggleLock("Family");
    waitFor([&] { return lockedAlbums() == Titles{"Holidays"}; });
    EXPECT_EQ(plain.call("ready").at("release"), "11.4") << "readers go on";
}

TEST_F(StateFiles, the_album_list_makes_the_missing_list_of_locked_albums) {
    startSpringBoard();
    startPhotos();
    waitFor([&] { return lockedAlbums() == Titles{}; });
}

class CameraAlbum : public StateFiles {
  protected:
    void choose(const char* title) {
        [[camera::viewfinder() bottomBar] chooseAlbum];
        tapAlertAction(title);
    }
    bool isStored(const std::string& path, const char* title) {
        return device().exists(path) && device().readPropertyList(path) == json::array({title});
    }
};

TEST_F(CameraAlbum, is_stored_with_every_choice) {
    startSpringBoard();
    start(host::camera);
    for (const char* title : {"Family", "Camera Roll", "Work"}) {
        choose(title);
        waitFor([&] { return isStored(file::cameraAlbum, title); });
    }
}

// On a device both names lead to one file; without the link they part.
TEST_F(CameraAlbum, is_written_by_the_full_name_of_var_and_read_by_the_short_one) {
    const std::string fullName = std::string("/private") + file::cameraAlbum;
    std::filesystem::remove(device().onLinux("/private/var"));
    device().writePropertyList(fullName, json::array({"Work"}));
    writePreferences({{"rememberDefault", true}});
    startSpringBoard();
    device().writePropertyList(file::cameraAlbum, json::array({"Family"}));
    start(host::camera);
    UIView* bar = [camera::viewfinder() bottomBar];
    [bar layoutSubviews];
    EXPECT_STREQ([[static_cast<UILabel*>([bar viewWithTag:78]) text] UTF8String], "Family");
    choose("Pets");
    waitFor([&] { return isStored(fullName, "Pets"); });
    EXPECT_TRUE(isStored(file::cameraAlbum, "Family"));
}

TEST_F(StateFiles, requests_of_one_sender_are_served_in_order) {
    HostProcess& springBoard = startSpringBoard();
    HostProcess sender = startProcess(host::plain);
    for (int number = 0; number < 50; ++number)
        EXPECT_TRUE(sender.call(saveRequest(json{std::to_string(number)}, file::lockedAlbums)).at("sent"));
    EXPECT_TRUE(eventually([&] { return lockedAlbums() == Titles{"49"}; }));
    EXPECT_TRUE(springBoard.isRunning());
}

TEST_F(StateFiles, readers_see_whole_lists_while_two_senders_write) {
    constexpr std::size_t length = 500;
    startSpringBoard();
    lockAlbums(Titles(length, "before"));
    std::vector<std::thread> senders;
    for (const char* application : {host::plain, host::settings})
        senders.emplace_back([this, application] {
            HostProcess sender = startProcess(application);
            for (int turn = 0; turn < 20; ++turn)
                sender.call(saveRequest(json(Titles(length, application)), file::lockedAlbums));
        });
    std::set<std::string> seen;
    const auto readWhole = [&] {
        const Titles titles = lockedAlbums().value();
        EXPECT_EQ(titles.size(), length);
        EXPECT_EQ(std::ranges::count(titles, titles.front()), std::ptrdiff_t(length));
        seen.insert(titles.front());
        return titles.front();
    };
    EXPECT_TRUE(eventually([&] { return readWhole() != "before"; }));
    for (int turn = 0; turn < 300; ++turn)
        readWhole();
    for (std::thread& sender : senders)
        sender.join();
    EXPECT_TRUE(eventually([&] {
        readWhole();
        return seen.contains(host::plain) && seen.contains(host::settings);
    }));
}

TEST_F(StateFiles, requests_that_make_no_sense_harm_nobody) {
    const json array = {"Work"};
    const json nonsense[] = {
        saveRequest(json::object()),
        saveRequest({{"path", file::lockedAlbums}}),
        saveRequest({{"array", array}}),
        saveRequest(5, file::lockedAlbums),
        saveRequest({{"array", array}, {"path", 7}}),
        saveRequest({{"array", array}, {"path", array}}),
        saveRequest(array, ""),
        saveRequest(array, "/"),
        saveRequest(array, file::stateFolder),
        saveRequest(array, "/no/such/folder/list.plist"),
        {{"do", "sendMessage"}, {"centre", "com.nrv.rollkeeper"}, {"name", "savearray"}, {"unlock", true}},
        {{"do", "sendMessage"},
         {"centre", "com.nrv.rollkeeper"},
         {"name", "loadarray"},
         {"unlock", true},
         {"userInfo", {{"array", array}, {"path", file::lockedAlbums}}}},
    };
    HostProcess& springBoard = startSpringBoard();
    HostProcess sender = startProcess(host::plain);
    for (const json& request : nonsense) {
        SCOPED_TRACE(request.dump());
        EXPECT_TRUE(sender.call(request).at("sent"));
        EXPECT_EQ(springBoard.call("ready").at("release"), "10.3");
    }
    EXPECT_EQ(lockedAlbums(), std::nullopt);
    sender.call(saveRequest({{"array", array}, {"path", file::lockedAlbums}}));
    EXPECT_TRUE(eventually([&] { return lockedAlbums() == Titles{"Work"}; })) << "the server goes on";
}

TEST_F(StateFiles, a_failed_write_leaves_the_file_as_it_was) {
    lockAlbums({"Work"});
    HostProcess& springBoard = startSpringBoard();
    HostProcess sender = startProcess(host::plain);
    change([](Conditions& conditions) { conditions.faults.diskFull = true; });
    sender.call(saveRequest({"Family"}, file::lockedAlbums));
    EXPECT_EQ(springBoard.call("ready").at("release"), "10.3");
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_EQ(lockedAlbums(), Titles{"Work"});
    change([](Conditions& conditions) { conditions.faults.diskFull = false; });
    sender.call(saveRequest({"Family"}, file::lockedAlbums));
    EXPECT_TRUE(eventually([&] { return lockedAlbums() == Titles{"Family"}; }));
}

// Nobody serves: the sender's own list has changed all the same.

class NobodyServes : public StateFiles {
  protected:
    void expectLockInMemoryOnly() {
        startPhotos();
        toggleLock("Work");
        settle();
        EXPECT_EQ(lockedAlbums(), std::nullopt);
        EXPECT_TRUE([host().installations().empty() ? nil : photos::openAlbumList() isViewLoaded]);
    }
};

TEST_F(NobodyServes, without_SpringBoard) { expectLockInMemoryOnly(); }

TEST_F(NobodyServes, when_the_library_was_switched_off_as_SpringBoard_started) {
    writePreferences({{"enabled", false}});
    startSpringBoard();
    expectLockInMemoryOnly();
}

TEST_F(NobodyServes, when_SpringBoard_runs_without_the_library) {
    HostProcess springBoard = startProcess(host::springBoard, false);
    expectLockInMemoryOnly();
}

TEST_F(NobodyServes, when_the_state_folder_is_gone) {
    HostProcess& springBoard = startSpringBoard();
    std::filesystem::remove_all(device().onLinux(file::stateFolder));
    expectLockInMemoryOnly();
    EXPECT_FALSE(device().exists(file::stateFolder)) << "the folder is made at the start alone";
    EXPECT_TRUE(springBoard.isRunning());
}

TEST_F(NobodyServes, after_SpringBoard_has_ended) {
    startSpringBoard().kill();
    expectLockInMemoryOnly();
}

} // namespace
} // namespace simulator::test
