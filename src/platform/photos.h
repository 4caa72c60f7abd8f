// The Photos framework. Fetches and objects may be used on any thread.
#pragma once

#include "platform/foundation.h"
#include "platform/uikit.h"

namespace rollkeeper {

struct PHAssetCollection;

enum class PHAssetMediaType : NSInteger { image = 1 };

enum class PHAssetCollectionType : NSInteger { album = 1, smartAlbum = 2, moment = 3 };

enum class PHAssetCollectionSubtype : NSInteger {
    albumRegular = 2,
    panoramas = 201,
    videos = 202,
    favorites = 203,
    timelapses = 204,
    allHidden = 205,
    recentlyAdded = 206,
    bursts = 207,
    slomoVideos = 208,
    userLibrary = 209, // the Camera Roll
    selfPortraits = 210,
    screenshots = 211,
    depthEffect = 212,
    livePhotos = 213,
    animated = 214,
    longExposures = 215,
    places = 1000000203, // private
    any = 0x7FFFFFFFFFFFFFFF,
};

struct PHFetchOptions : NSObject {
    static constexpr FixedString className = "PHFetchOptions";

    void setIncludeHiddenAssets(bool include) const {
        send<PHFetchOptions, "setIncludeHiddenAssets:", void>(*this, include);
    }
    [[nodiscard]] bool includeHiddenAssets() const {
        return send<PHFetchOptions, "includeHiddenAssets", bool>(*this);
    }
    void setPredicate(NSPredicate predicate) const {
        send<PHFetchOptions, "setPredicate:", void>(*this, predicate);
    }
    void setSortDescriptors(NSArray descriptors) const {
        send<PHFetchOptions, "setSortDescriptors:", void>(*this, descriptors);
    }
};

struct PHObject : NSObject {
    static constexpr FixedString className = "PHObject";

    NSString localIdentifier() const { return send<PHObject, "localIdentifier", NSString>(*this); }
};

struct PHFetchResult : NSObject {
    static constexpr FixedString className = "PHFetchResult";

    NSUInteger count() const { return send<PHFetchResult, "count", NSUInteger>(*this); }
    NSObject firstObject() const { return send<PHFetchResult, "firstObject", NSObject>(*this); }
    NSObject lastObject() const { return send<PHFetchResult, "lastObject", NSObject>(*this); }

    // The block is void(NSObject object, NSUInteger index, bool* stop).
    void enumerateObjects(Block visitor) const {
        send<PHFetchResult, "enumerateObjectsUsingBlock:", void>(*this, visitor);
    }
};

struct PHAsset : PHObject {
    static constexpr FixedString className = "PHAsset";

    static PHFetchResult fetchAssetsInAssetCollection(PHObject collection, PHFetchOptions options) {
        return sendToClass<PHAsset, "fetchAssetsInAssetCollection:options:", PHFetchResult>(collection,
                                                                                            options);
    }
    static PHFetchResult fetchAssetsWithMediaType(PHAssetMediaType type, PHFetchOptions options) {
        return sendToClass<PHAsset, "fetchAssetsWithMediaType:options:", PHFetchResult>(type, options);
    }

    // Without those in the trash.
    static PHFetchResult fetchAssetsWithLocalIdentifiers(NSArray identifiers, PHFetchOptions options) {
        return sendToClass<PHAsset, "fetchAssetsWithLocalIdentifiers:options:", PHFetchResult>(identifiers,
                                                                                               options);
    }

    bool isHidden() const { return send<PHAsset, "isHidden", bool>(*this); }
};

struct PHCollection : PHObject {
    static constexpr FixedString className = "PHCollection";

    NSString localizedTitle() const {
        return ifKindOf<NSString>(send<PHCollection, "localizedTitle", NSString>(*this));
    }
};

struct PHAssetCollection : PHCollection {
    static constexpr FixedString className = "PHAssetCollection";

    static PHFetchResult fetchAssetCollections(PHAssetCollectionType type, PHAssetCollectionSubtype subtype,
                                               PHFetchOptions options) {
        return sendToClass<PHAssetCollection, "fetchAssetCollectionsWithType:subtype:options:",
                           PHFetchResult>(type, subtype, options);
    }
    static PHFetchResult fetchAssetCollectionsContainingAsset(PHAsset asset, PHAssetCollectionType type) {
        return sendToClass<PHAssetCollection, "fetchAssetCollectionsContainingAsset:withType:options:",
                           PHFetchResult>(asset, type, PHFetchOptions());
    }
    static PHFetchResult fetchAssetCollectionsWithLocalIdentifiers(NSArray identifiers) {
        return sendToClass<PHAssetCollection, "fetchAssetCollectionsWithLocalIdentifiers:options:",
                           PHFetchResult>(identifiers, PHFetchOptions());
    }
    static PHAssetCollection transientAssetCollection(NSArray assets, NSString title) {
        return sendToClass<PHAssetCollection, "transientAssetCollectionWithAssets:title:", PHAssetCollection>(
            assets, title);
    }

    NSString title() const { return ifKindOf<NSString>(send<PHAssetCollection, "title", NSString>(*this)); }
    bool isTrashBin() const { return send<PHAssetCollection, "isTrashBin", bool>(*this); }
    PHAssetCollectionType assetCollectionType() const {
        return send<PHAssetCollection, "assetCollectionType", PHAssetCollectionType>(*this);
    }
    PHAssetCollectionSubtype assetCollectionSubtype() const {
        return send<PHAssetCollection, "assetCollectionSubtype", PHAssetCollectionSubtype>(*this);
    }
};

struct PHObjectPlaceholder : PHObject {
    static constexpr FixedString className = "PHObjectPlaceholder";
};

// Change requests are made inside a change block only.
struct PHAssetCollectionChangeRequest : NSObject {
    static constexpr FixedString className = "PHAssetCollectionChangeRequest";

    static PHAssetCollectionChangeRequest creationRequest(NSString title) {
        return sendToClass<PHAssetCollectionChangeRequest, "creationRequestForAssetCollectionWithTitle:",
                           PHAssetCollectionChangeRequest>(title);
    }
    static PHAssetCollectionChangeRequest changeRequest(PHAssetCollection collection, PHFetchResult assets) {
        return sendToClass<PHAssetCollectionChangeRequest, "changeRequestForAssetCollection:assets:",
                           PHAssetCollectionChangeRequest>(collection, assets);
    }

    // `assets` is anything that enumerates.
    void addAssets(NSObject assets) const {
        send<PHAssetCollectionChangeRequest, "addAssets:", void>(*this, assets);
    }
    void removeAssets(NSObject assets) const {
        send<PHAssetCollectionChangeRequest, "removeAssets:", void>(*this, assets);
    }
    PHObjectPlaceholder placeholderForCreatedAssetCollection() const {
        return send<PHAssetCollectionChangeRequest, "placeholderForCreatedAssetCollection",
                    PHObjectPlaceholder>(*this);
    }
};

enum class PHAuthorizationStatus : NSInteger { authorized = 3 };

struct PHPhotoLibrary : NSObject {
    static constexpr FixedString className = "PHPhotoLibrary";

    static PHPhotoLibrary sharedPhotoLibrary() {
        return sendToClass<PHPhotoLibrary, "sharedPhotoLibrary", PHPhotoLibrary>();
    }

    // Asks nobody anything.
    static PHAuthorizationStatus authorizationStatus() {
        return sendToClass<PHPhotoLibrary, "authorizationStatus", PHAuthorizationStatus>();
    }

    // `changes`, void(), and `completion`, void(bool success, NSError error), run on a queue of the
    // framework.
    void performChanges(Block changes, Block completion) const {
        send<PHPhotoLibrary, "performChanges:completionHandler:", void>(*this, changes, completion);
    }
};

enum class PHImageContentMode : NSInteger { aspectFit = 0 };
enum class PHImageRequestOptionsResizeMode : NSInteger { exact = 2 };

struct PHImageRequestOptions : NSObject {
    static constexpr FixedString className = "PHImageRequestOptions";

    void setResizeMode(PHImageRequestOptionsResizeMode mode) const {
        send<PHImageRequestOptions, "setResizeMode:", void>(*this, mode);
    }
    void setSynchronous(bool synchronous) const {
        send<PHImageRequestOptions, "setSynchronous:", void>(*this, synchronous);
    }
};

struct PHImageManager : NSObject {
    static constexpr FixedString className = "PHImageManager";

    static PHImageManager defaultManager() {
        return sendToClass<PHImageManager, "defaultManager", PHImageManager>();
    }

    // The handler is void(UIImage image, NSDictionary info); the image lives no longer than the handler's
    // call.
    void requestImage(PHAsset asset, CGSize targetSize, PHImageContentMode mode,
                      PHImageRequestOptions options, Block handler) const {
        send<PHImageManager, "requestImageForAsset:targetSize:contentMode:options:resultHandler:", int>(
            *this, asset, targetSize, mode, options, handler);
    }
};

} // namespace rollkeeper
