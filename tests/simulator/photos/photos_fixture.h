// The Photos framework over the small sample library, without any application.
#pragma once

#include "device/exceptions.h"
#include "device/root.h"
#include "device/strings.h"
#include "support/library_fixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace simulator::test {

using Numbers = std::vector<int>;

class Photos : public LibraryTest {
  protected:
    Photos() {
        mountDevice(device().folder());
        for (const Asset& asset : library().assets())
            m_photos.push_back(asset.identifier);
    }

    /// The sample's asset of that number, the oldest being 0.
    const std::string& photo(std::size_t number) { return m_photos.at(number); }
    PHAsset* asset(std::size_t number) {
        PHFetchOptions* options = [[[PHFetchOptions alloc] init] autorelease];
        options.includeHiddenAssets = YES;
        options.predicate = [NSPredicate predicateWithFormat:@"localIdentifier = %@"
                                               argumentArray:@[ string(photo(number)) ]];
        return [[PHAsset fetchAssetsWithOptions:options] firstObject];
    }
    /// The sample numbers of the assets of a result.
    Numbers numbers(PHFetchResult* result) {
        Numbers numbers;
        for (PHAsset* each in result)
            numbers.push_back(static_cast<int>(std::ranges::find(m_photos, text([each localIdentifier])) -
                                               m_photos.begin()));
        return numbers;
    }
    Numbers numbersIn(PHAssetCollection* collection, PHFetchOptions* options = nil) {
        return numbers([PHAsset fetchAssetsInAssetCollection:collection options:options]);
    }

  private:
    std::vector<std::string> m_photos;
};

inline constexpr NSInteger cameraRoll = 209;
inline constexpr NSInteger hiddenAlbum = 205;
inline constexpr NSInteger trashBin = 1'000'000'201;

inline PHFetchResult* collections(PHAssetCollectionType type, NSInteger subtype = NSIntegerMax) {
    return [PHAssetCollection fetchAssetCollectionsWithType:type
                                                    subtype:static_cast<PHAssetCollectionSubtype>(subtype)
                                                    options:nil];
}

inline PHAssetCollection* smartAlbum(NSInteger subtype) {
    return [collections(PHAssetCollectionTypeSmartAlbum, subtype) firstObject];
}

/// The name of the exception that `work` raises; empty when it raises none.
inline std::string exceptionOf(const std::function<void()>& work) {
    const std::string exception = foundationExceptionOf(work).value_or("");
    return exception.substr(0, exception.find(':'));
}

/// Makes a change and waits; false when it was refused.
inline bool changeLibrary(void (^changes)(void)) {
    return [[PHPhotoLibrary sharedPhotoLibrary] performChangesAndWait:changes error:NULL];
}

} // namespace simulator::test
