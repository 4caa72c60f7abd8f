#include "support/library_test.h"

#import "CoreFoundation/CoreFoundation.h"
#include "photolibrary/samples.h"
#include "support/environment.h"

#include <unistd.h>

#include <sstream>

namespace simulator::test {

namespace {

std::filesystem::path freshFolder() {
    std::string folder = (std::filesystem::temp_directory_path() / "rollkeeper-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no folder for a device");
    return folder;
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
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         (CFStringRef) @"com.nrv.rollkeeperprefs/reloadPrefs", nullptr,
                                         nullptr, true);
    settle();
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
    ASSERT_TRUE(m_host->runUntil(condition));
}

} // namespace simulator::test
