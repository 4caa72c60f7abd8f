// What a process sees of the photo library, with the library under test in the test's own process.
#pragma once

#include "support/photos_fixture.h"

#import "filtering/stock_smart_albums.h"

#include <set>

// A collection of a class that the platform does not have.
@interface FakeCollection : NSObject {
  @public
    std::set<std::string> lacking; // selectors
  @private
    NSInteger _assetCollectionType;
    NSInteger _assetCollectionSubtype;
    NSString* _title;
    BOOL _trashBin;
}
@property (nonatomic) NSInteger assetCollectionType;
@property (nonatomic) NSInteger assetCollectionSubtype;
@property (nonatomic, copy) NSString* title;
@property (nonatomic, getter=isTrashBin) BOOL trashBin;
+ (FakeCollection*)collectionOfType:(NSInteger)type subtype:(NSInteger)subtype title:(NSString*)title;
@end

namespace simulator::test {

inline constexpr double ios11 = 1443.0; // from this version on regular albums are filtered, too

PHFetchResult* albums(PHAssetCollectionType type = PHAssetCollectionTypeAlbum,
                      NSInteger subtype = PHAssetCollectionSubtypeAny);
NSArray* listed(NSArray* collections); // by a list that holds them

class FilteringTest : public PhotosTest {
  protected:
    // Starts the application on a device that has every class and method.
    void startComplete(const std::string& bundleIdentifier, std::function<void()> beforeLoading = {});
};

} // namespace simulator::test
