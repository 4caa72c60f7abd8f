// A device of its own for each test, with the small sample library, and a host application in the test's
// process.
#pragma once

#include "device/device.h"
#include "hosts/applications/bundle_identifiers.h"
#include "hosts/host.h"
#include "photolibrary/samples.h"

#import "Photos/Photos.h"
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace simulator::test {

class HostsTest : public testing::Test {
  protected:
    HostsTest();
    ~HostsTest() override;

    const Device& device() const { return m_device; }
    PhotoLibrary& library() { return *m_library; }

    // Starts the application without the library.
    Host& start(const std::string& bundleIdentifier);
    // Waits on the main run loop; a failure of the test when it never holds.
    void waitFor(const std::function<bool()>& condition);

    // The sample's photo of that number, the oldest being 0; read anew.
    Asset photo(std::size_t number);
    PHAsset* asset(std::size_t number);
    // The sample numbers of the photos that the album holds, hidden ones included.
    std::vector<std::size_t> numbersIn(const std::string& albumTitle);

  private:
    NSAutoreleasePool* m_pool;
    std::filesystem::path m_folder;
    Device m_device;
    std::unique_ptr<PhotoLibrary> m_library;
    std::vector<std::string> m_identifiers;
    std::optional<Host> m_host;
};

} // namespace simulator::test
