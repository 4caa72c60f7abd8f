// A device of its own for each test, with the small sample library, and short ways to ask what the framework
// says.
#pragma once

#import "Photos/Photos.h"

#include "device/device.h"
#include "photolibrary/samples.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace simulator::test {

using Texts = std::vector<std::string>;

class PhotosTest : public testing::Test {
  protected:
    PhotosTest();
    ~PhotosTest() override;

    /// The device's library, as another process would open it.
    PhotoLibrary& library() { return *m_library; }
    const Device& device() const { return m_device; }
    /// The sample's asset of that number, the oldest being 0.
    std::string photo(std::size_t number) { return m_photos.at(number); }
    PHAsset* asset(std::size_t number);
    PHAssetCollection* album(const char* title);
    PHAssetCollection* smartAlbum(NSInteger subtype);
    /// The sample numbers of the assets of a result.
    std::vector<int> numbers(PHFetchResult* result);

  private:
    NSAutoreleasePool* m_pool;
    std::filesystem::path m_folder;
    Device m_device;
    std::unique_ptr<PhotoLibrary> m_library;
    std::vector<std::string> m_photos;
};

/// Default options, but for hidden assets.
PHFetchOptions* includingHidden();
PHFetchOptions* matching(NSString* format, id argument);
PHFetchOptions* sortedBy(NSString* key, BOOL ascending);

/// The titles of the collections of a result; "-" for none.
Texts titles(id<NSFastEnumeration> collections);
/// The name of the exception that `work` raises; empty when it raises none.
std::string exceptionOf(void (^work)(void));

/// Makes a change and waits; false when it was refused.
bool changeLibrary(void (^changes)(void));

} // namespace simulator::test
