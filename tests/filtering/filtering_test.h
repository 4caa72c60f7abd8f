// What a process sees of the photo library, with the library under test in the test's own process.
#pragma once

#include "support/photos_fixture.h"

#include <set>

// A collection of a class that the platform does not have.
@interface FakeCollection : NSObject {
  @public
    NSInteger type;
    NSInteger subtype;
    NSString* title;
    BOOL isTrash;
    std::set<std::string> lacking; // selectors
}
+ (FakeCollection*)collectionOfType:(NSInteger)type subtype:(NSInteger)subtype title:(NSString*)title;
@end

namespace simulator::test {

inline constexpr NSInteger trashBinSubtype = 1'000'000'201;
inline constexpr double ios11 = 1443.0; // from this version on regular albums are filtered, too

PHFetchResult* albums(PHAssetCollectionType type = PHAssetCollectionTypeAlbum,
                      NSInteger subtype = PHAssetCollectionSubtypeAny);
NSArray* listed(NSArray* collections); // by a list that holds them

class FilteringTest : public PhotosTest {
  protected:
    ~FilteringTest() override { [m_known release]; }

    // Starts the application on a device that has every class and method.
    void startComplete(const std::string& bundleIdentifier);
    // Writes them, posts the notification and waits until the library has heard it.
    void setPreferences(const nlohmann::json& preferences);
    // The albums' switches that were ever read, as those that have left the file count on.
    NSDictionary* visibility() const { return m_known; }

  private:
    NSMutableDictionary* m_known = [[NSMutableDictionary alloc] init];
};

} // namespace simulator::test
