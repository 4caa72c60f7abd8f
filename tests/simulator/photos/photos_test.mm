#import "simulator/photos/photos_test.h"

#include "device/root.h"

#include <algorithm>
#include <cstdlib>

namespace simulator::test {

namespace {

std::filesystem::path makeFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "photos-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
    return name;
}

} // namespace

PhotosTest::PhotosTest()
    : m_pool([[NSAutoreleasePool alloc] init]), m_folder(makeFolder()), m_device(Device::create(m_folder)),
      m_library(PhotoLibrary::open(m_device)) {
    mountDevice(m_folder);
    addSmallSample(*m_library);
    for (const Asset& asset : m_library->assets())
        m_photos.push_back(asset.identifier);
}

PhotosTest::~PhotosTest() {
    [m_pool drain];
    std::filesystem::remove_all(m_folder);
}

PHAsset* PhotosTest::asset(std::size_t number) {
    NSString* identifier = [NSString stringWithUTF8String:photo(number).c_str()];
    return [[PHAsset fetchAssetsWithLocalIdentifiers:@[ identifier ] options:includingHidden()] firstObject];
}

PHAssetCollection* PhotosTest::album(const char* title) {
    PHFetchOptions* options = matching(@"title = %@", [NSString stringWithUTF8String:title]);
    return [[PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                     subtype:PHAssetCollectionSubtypeAny
                                                     options:options] firstObject];
}

PHAssetCollection* PhotosTest::smartAlbum(NSInteger subtype) {
    return [[PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeSmartAlbum
                                                     subtype:static_cast<PHAssetCollectionSubtype>(subtype)
                                                     options:nil] firstObject];
}

std::vector<int> PhotosTest::numbers(PHFetchResult* result) {
    std::vector<int> numbers;
    for (PHAsset* asset in result) {
        const auto found = std::ranges::find(m_photos, [[asset localIdentifier] UTF8String]);
        numbers.push_back(static_cast<int>(found - m_photos.begin()));
    }
    return numbers;
}

PHFetchOptions* includingHidden() {
    PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
    options.includeHiddenAssets = YES;
    return options;
}

PHFetchOptions* matching(NSString* format, id argument) {
    PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
    options.predicate = [NSPredicate predicateWithFormat:format argumentArray:@[ argument ]];
    return options;
}

PHFetchOptions* sortedBy(NSString* key, BOOL ascending) {
    PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
    options.sortDescriptors = @[ [NSSortDescriptor sortDescriptorWithKey:key ascending:ascending] ];
    return options;
}

Texts titles(id<NSFastEnumeration> collections) {
    Texts titles;
    for (PHCollection* collection in collections) {
        NSString* title = [collection localizedTitle];
        titles.push_back(title ? [title UTF8String] : "-");
    }
    return titles;
}

std::string exceptionOf(void (^work)(void)) {
    @try {
        work();
    } @catch (NSException* exception) {
        return [[exception name] UTF8String];
    }
    return {};
}

bool changeLibrary(void (^changes)(void)) {
    return [[PHPhotoLibrary sharedPhotoLibrary] performChangesAndWait:changes error:NULL];
}

} // namespace simulator::test
