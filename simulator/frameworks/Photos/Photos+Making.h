// How the classes of the framework make one another from the records of the store; not for its users.
#pragma once

#import "Photos/Photos.h"

#include "Photos/LibraryErrors.h"
#include "photolibrary/library.h"

#include <functional>
#include <mutex>
#include <vector>

@interface PHObject (Making)
- (instancetype)initWithLocalIdentifier:(NSString*)identifier;
@end

@interface PHAsset (Making)
- (instancetype)initWithAsset:(const simulator::Asset&)record;
- (const simulator::Asset&)record;
@end

@interface PHCollection (Making)
/// A PHCollectionList for a folder, else a PHAssetCollection. Autoreleased.
+ (PHCollection*)collectionWithRecord:(const simulator::Collection&)record;
- (instancetype)initWithCollection:(const simulator::Collection&)record;
- (const simulator::Collection&)record;
@end

@interface PHAssetCollection (Making)
/// The identifiers of a transient collection's assets; nil for every other collection.
- (NSArray*)transientIdentifiers;
@end

@interface PHFetchResult (Making)
+ (PHFetchResult*)resultWithAssets:(simulator::Assets)assets options:(PHFetchOptions*)options;
+ (PHFetchResult*)resultWithCollections:(const simulator::Collections&)collections
                                options:(PHFetchOptions*)options;
@end

namespace simulator {

/// The objects of a fetch result, made when they are first asked for. Any thread.
class FetchedObjects {
  public:
    using Make = std::function<id(std::size_t index)>; ///< returns an owned object

    FetchedObjects(std::size_t count, Make make) : m_count(count), m_make(std::move(make)) {}
    ~FetchedObjects();
    FetchedObjects(const FetchedObjects&) = delete;
    FetchedObjects& operator=(const FetchedObjects&) = delete;

    std::size_t count() const { return m_count; }
    /// Borrowed: lives as long as these objects do.
    id at(std::size_t index);

  private:
    std::size_t m_count;
    Make m_make;
    std::mutex m_mutex;
    std::vector<id> m_objects;
};

/// What a fetch leaves out by its options; nil options are the default ones.
AssetFilter filterOf(PHFetchOptions* options);

NSString* stringOf(const std::string& text);
std::string textOf(NSString* string); ///< empty for nil
Identifiers identifiersOf(NSArray* strings);

[[noreturn]] void raiseLibraryError(const std::string& message);

/// Runs `work` with the device's library; an error of the store becomes an NSInternalInconsistencyException.
template <class Work> auto withLibrary(const Work& work) {
    std::optional<decltype(work(sharedPhotoLibrary()))> result;
    if (const auto failure = failureOf([&] { result = work(sharedPhotoLibrary()); }))
        raiseLibraryError(*failure);
    return *std::move(result);
}

} // namespace simulator
