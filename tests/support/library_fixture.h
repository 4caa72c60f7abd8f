// A device of its own for each test, with the small sample library, on which the library under test runs
// inside a host application in the test's process.
#pragma once

#include "device/device.h"
#include "hosts/applications/bundle_identifiers.h"
#include "hosts/client.h"
#include "hosts/host.h"
#include "photolibrary/library.h"

#import "Photos/Photos.h"

#import <Foundation/Foundation.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace simulator::test {

namespace host = bundle;

namespace file {
inline constexpr const char* preferences = "/var/mobile/Library/Preferences/com.nrv.rollkeeperprefs.plist";
inline constexpr const char* stateFolder = "/var/mobile/Library/rollkeeper";
inline constexpr const char* cameraAlbum = "/var/mobile/Library/rollkeeper/album.tct";
inline constexpr const char* lockedAlbums = "/var/mobile/Library/rollkeeper/lockedAlbums.plist";
inline constexpr const char* password = "/var/mobile/Library/rollkeeper/settings.tct";
} // namespace file

// The user album of that title as an application fetches it; nil when it is shown none.
PHAssetCollection* album(NSString* title);

class LibraryTest : public testing::Test {
  protected:
    LibraryTest();
    ~LibraryTest() override;

    const Device& device() const { return m_device; }
    PhotoLibrary& library() { return *m_library; }

    void writePreferences(const nlohmann::json& preferences);
    // Writes them and posts the notification, as the settings pane does; the library has read them then.
    void reloadPreferences(const nlohmann::json& preferences);
    // Posts it alone, of whatever the file is.
    void postReload() { postAndWait(@"com.nrv.rollkeeperprefs/reloadPrefs"); }
    void lockAlbums(const std::vector<std::string>& titles);
    // The list in the file; nothing when there is no file.
    std::optional<std::vector<std::string>> lockedAlbums() const;
    void change(const std::function<void(Conditions&)>& edit) { m_device.changeConditions(edit); }

    // Starts the application with the library under test, in this process; what runs before the library loads
    // already finds the device.
    Host& start(const std::string& bundleIdentifier, std::function<void()> beforeLoading = {});
    // The same in a process of its own, and without the library.
    HostProcess startProcess(const std::string& bundleIdentifier, bool withLibrary = true);
    // The process that writes state files for all others; runs until the test ends.
    HostProcess& startSpringBoard();
    Host& host() { return *m_host; }

    // Waits on the main run loop of the application, if there is one in this process; a failure of the test
    // when it never holds.
    void waitFor(const std::function<bool()>& condition);
    // Waits until nothing that was begun is under way any more: answers of Touch ID, changes of the photo
    // library, notifications, and what these begin on the main queue.
    void settle();
    // What Touch ID was asked for so far.
    static std::vector<std::string> unlockReasons();

  private:
    void postAndWait(NSString* notification);

    NSAutoreleasePool* m_pool;
    std::filesystem::path m_folder;
    Device m_device;
    std::unique_ptr<PhotoLibrary> m_library;
    std::optional<Host> m_host;
    std::optional<HostProcess> m_springBoard;
};

} // namespace simulator::test
