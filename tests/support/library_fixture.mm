#include "support/library_fixture.h"

#import "CoreFoundation/CoreFoundation.h"
#import "Dispatch/Dispatch.h"
#import "LocalAuthentication/LocalAuthentication.h"
#include "LocalAuthentication/Reasons.h"
#include "photolibrary/samples.h"
#include "support/environment.h"

#include <unistd.h>

#include <chrono>
#include <sstream>
#include <thread>

namespace simulator::test {

namespace {

NSString* const settlingReason = @"settling";

std::filesystem::path freshFolder() {
    std::string folder = (std::filesystem::temp_directory_path() / "rollkeeper-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no folder for a device");
    return folder;
}

void noteArrival(CFNotificationCenterRef, void* arrived, CFStringRef, const void*, CFDictionaryRef) {
    *static_cast<bool*>(arrived) = true;
}

std::vector<std::string> emulatorCommand() {
    std::istringstream words(emulator());
    return {std::istream_iterator<std::string>(words), {}};
}

} // namespace

PHAssetCollection* album(NSString* title) {
    for (PHAssetCollection* each in
         [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                  subtype:PHAssetCollectionSubtypeAny
                                                  options:nil])
        if ([[each title] isEqualToString:title]) return each;
    return nil;
}

LibraryTest::LibraryTest()
    : m_pool([[NSAutoreleasePool alloc] init]), m_folder(freshFolder()), m_device(Device::create(m_folder)),
      m_library(PhotoLibrary::open(m_device)) {
    addSmallSample(*m_library);
}

LibraryTest::~LibraryTest() {
    [m_pool drain];
    m_springBoard.reset();
    m_host.reset();
    std::filesystem::current_path(std::filesystem::temp_directory_path());
    std::filesystem::remove_all(m_folder);
}

void LibraryTest::writePreferences(const nlohmann::json& preferences) {
    m_device.writePropertyList(file::preferences, preferences);
}

void LibraryTest::reloadPreferences(const nlohmann::json& preferences) {
    writePreferences(preferences);
    postReload();
}

// Observers are told in the order in which they registered: the library's has been told when ours is.
void LibraryTest::postAndWait(NSString* notification) {
    const auto name = (CFStringRef)notification;
    CFNotificationCenterRef center = CFNotificationCenterGetDarwinNotifyCenter();
    bool hasArrived = false;
    CFNotificationCenterAddObserver(center, &hasArrived, noteArrival, name, nullptr, 0);
    CFNotificationCenterPostNotification(center, name, nullptr, nullptr, true);
    waitFor([&] { return hasArrived; });
    CFNotificationCenterRemoveObserver(center, &hasArrived, name, nullptr);
}

void LibraryTest::lockAlbums(const std::vector<std::string>& titles) {
    m_device.writePropertyList(file::lockedAlbums, titles);
}

std::optional<std::vector<std::string>> LibraryTest::lockedAlbums() const {
    if (!m_device.exists(file::lockedAlbums)) return std::nullopt;
    return m_device.readPropertyList(file::lockedAlbums).get<std::vector<std::string>>();
}

Host& LibraryTest::start(const std::string& bundleIdentifier, std::function<void()> beforeLoading) {
    return m_host.emplace(HostOptions{.bundleIdentifier = bundleIdentifier,
                                      .device = m_folder,
                                      .library = libraryFile(),
                                      .beforeLoading = std::move(beforeLoading)});
}

HostProcess LibraryTest::startProcess(const std::string& bundleIdentifier, bool withLibrary) {
    HostProcessOptions options;
    options.program = hostProgram();
    options.bundleIdentifier = bundleIdentifier;
    options.device = m_folder;
    if (withLibrary) options.library = libraryFile();
    options.emulator = emulatorCommand();
    return HostProcess(std::move(options));
}

HostProcess& LibraryTest::startSpringBoard() {
    return m_springBoard.emplace(startProcess(host::springBoard));
}

void LibraryTest::waitFor(const std::function<bool()>& condition) {
    if (m_host) {
        ASSERT_TRUE(m_host->runUntil(condition));
        return;
    }
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!condition() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    ASSERT_TRUE(condition());
}

// A round trip through each queue, behind what waits there. An answer may begin a change, and the end of one
// change another.
void LibraryTest::settle() {
    bool isAnswered = false;
    bool* answered = &isAnswered;
    [[[[LAContext alloc] init] autorelease] evaluatePolicy:LAPolicyDeviceOwnerAuthentication
                                           localizedReason:settlingReason
                                                     reply:^(BOOL, NSError*) {
                                                         dispatch_async(dispatch_get_main_queue(), ^{
                                                             *answered = true;
                                                         });
                                                     }];
    waitFor([&] { return isAnswered; });
    for (int round = 0; round < 2; ++round) {
        NSError* error = nil;
        [[PHPhotoLibrary sharedPhotoLibrary]
            performChangesAndWait:^{
            }
                            error:&error];
        postAndWait(@"settled");
    }
    // It takes this after the messages that it has been sent.
    if (m_springBoard && m_springBoard->isRunning()) m_springBoard->call("ready");
}

std::vector<std::string> LibraryTest::unlockReasons() {
    std::vector<std::string> reasons = authenticationReasons();
    std::erase(reasons, [settlingReason UTF8String]);
    return reasons;
}

} // namespace simulator::test
