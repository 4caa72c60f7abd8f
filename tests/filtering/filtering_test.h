// What a process sees of the photo library, with the library under test in the test's own process.
#pragma once

#import "Photos/Photos.h"

#include "support/library_test.h"

#include <map>

// Collections of classes that the platform does not have, and that lack one selector after the other.
@interface UntypedCollection : NSObject {
  @public
    NSInteger subtype;
}
- (PHAssetCollectionSubtype)assetCollectionSubtype;
@end

@interface UntitledCollection : UntypedCollection {
  @public
    NSInteger type;
}
- (PHAssetCollectionType)assetCollectionType;
@end

@interface FakeCollection : UntitledCollection {
  @public
    NSString* title;
    BOOL isTrash;
}
+ (FakeCollection*)collectionOfType:(NSInteger)type subtype:(NSInteger)subtype title:(NSString*)title;
- (NSString*)title;
- (BOOL)isTrashBin;
@end

namespace simulator::test {

inline constexpr NSInteger trashBinSubtype = 1'000'000'201;
inline constexpr double ios11 = 1443.0; // from this version on regular albums are filtered, too

class FilteringTest : public LibraryTest {
  protected:
    ~FilteringTest() override { [m_known release]; }

    // Starts the application on a device that has every class and method.
    void startComplete(const std::string& bundleIdentifier);
    // Writes the preferences, posts the notification and waits until the library has heard it.
    void reload(const nlohmann::json& preferences);
    // The albums' switches that were ever read, as those that have left the file count on.
    NSDictionary* visibility() const { return m_known; }

    PHFetchResult* albums(PHAssetCollectionType type = PHAssetCollectionTypeAlbum);
    PHAssetCollection* album(NSString* title);
    // What a list of these answers, by description: a number says which of them, a title with photos that it
    // is a copy.
    std::vector<std::string> filtered(NSArray* listed);
    std::vector<std::string> describe(NSArray* answer, NSArray* listed);

  private:
    NSMutableDictionary* m_known = [[NSMutableDictionary alloc] init];
};

} // namespace simulator::test
