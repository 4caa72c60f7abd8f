// How the classes of the framework make one another from the records of the store; not for its users.
#pragma once

#import "Photos/Photos.h"

#include "device/exceptions.h"
#include "device/strings.h"
#include "photolibrary/library.h"

@interface PHObject (Making)
- (instancetype)initWithLocalIdentifier:(NSString*)identifier;
@end

@interface PHAsset (Making)
- (instancetype)initWithAsset:(const simulator::Asset&)record;
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
+ (PHFetchResult*)resultWithObjects:(NSArray*)objects;
@end

@interface PHChangeRequest (Making)
/// The change that the calling thread's change block fills; raises outside every change block.
+ (simulator::Change&)currentChange;
/// A request of the current change block; raises outside. Autoreleased; nil for nil.
+ (instancetype)requestForIdentifier:(NSString*)identifier;
/// The change that this request belongs to; raises when its change block is not running.
- (simulator::Change&)change;
/// Of the asset or collection that the request is about.
- (std::string)identifier;
@end

namespace simulator {

/// The change that the block's requests on this thread make up.
Change changeMadeBy(void (^block)(void));

/// The identifiers of assets, collections or placeholders; raises NSInvalidArgumentException for anything
/// else.
Identifiers identifiersOf(id<NSFastEnumeration> objects);

std::optional<std::string> titleOf(NSString* title);

/// What a fetch of assets leaves out and how it is sorted, by its options; nil options are the default ones.
AssetFilter filterOf(PHFetchOptions* options);

/// Of the records, those that the options' predicate lets pass: the end of every fetch.
PHFetchResult* resultOf(const Assets& assets, PHFetchOptions* options);
PHFetchResult* resultOf(const Collections& collections, PHFetchOptions* options);

/// From iOS 10 on the system ends an application that fetches unless it is authorized or describes its usage.
void endUnlessFetchingIsSafe();

[[noreturn]] void raise(NSString* exception, NSString* reason);

/// Runs `work` with the device's library; an error of the store becomes an NSInternalInconsistencyException.
template <class Work> auto withLibrary(const Work& work) {
    std::optional<decltype(work(sharedPhotoLibrary()))> result;
    if (const auto failure = standardExceptionOf([&] { result = work(sharedPhotoLibrary()); }))
        raise(NSInternalInconsistencyException, string("the photo library cannot be read: " + *failure));
    return *std::move(result);
}

} // namespace simulator
