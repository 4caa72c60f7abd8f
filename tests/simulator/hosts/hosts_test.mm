#include "simulator/hosts/hosts_test.h"

#include <unistd.h>

#include <algorithm>

namespace simulator::test {

namespace {

std::filesystem::path freshFolder() {
    std::string folder = (std::filesystem::temp_directory_path() / "hosts-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no folder for a device");
    return folder;
}

} // namespace

HostsTest::HostsTest()
    : m_pool([[NSAutoreleasePool alloc] init]), m_folder(freshFolder()), m_device(Device::create(m_folder)),
      m_library(PhotoLibrary::open(m_device)) {
    addSmallSample(*m_library);
    for (const Asset& each : m_library->assets())
        m_identifiers.push_back(each.identifier);
}

HostsTest::~HostsTest() {
    [m_pool drain];
    m_host.reset();
    std::filesystem::current_path(std::filesystem::temp_directory_path());
    std::filesystem::remove_all(m_folder);
}

Host& HostsTest::start(const std::string& bundleIdentifier) {
    return m_host.emplace(
        HostOptions{.bundleIdentifier = bundleIdentifier, .device = m_folder, .library = std::nullopt});
}

void HostsTest::waitFor(const std::function<bool()>& condition) { ASSERT_TRUE(m_host->runUntil(condition)); }

Asset HostsTest::photo(std::size_t number) { return m_library->asset(m_identifiers.at(number)).value(); }

PHAsset* HostsTest::asset(std::size_t number) {
    NSString* identifier = [NSString stringWithUTF8String:m_identifiers.at(number).c_str()];
    PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
    [options setIncludeHiddenAssets:YES];
    options.predicate = [NSPredicate predicateWithFormat:@"localIdentifier = %@"
                                           argumentArray:@[ identifier ]];
    return [[PHAsset fetchAssetsWithOptions:options] firstObject];
}

std::vector<std::size_t> HostsTest::numbersIn(const std::string& albumTitle) {
    const auto album = m_library->albumTitled(albumTitle);
    std::vector<std::size_t> numbers;
    if (!album) return numbers;
    for (const Asset& each : m_library->assetsIn(*album, {.includeHidden = true})) {
        const auto found = std::ranges::find(m_identifiers, each.identifier);
        numbers.push_back(static_cast<std::size_t>(found - m_identifiers.begin()));
    }
    return numbers;
}

} // namespace simulator::test
