// The Photos framework: fetches from, and changes to, the photo library of the simulated device.
//
// Every class here may be used on any thread. A fetch reads the store once; its result is a snapshot, and so
// are the objects in it. Two objects of one local identifier are equal.
//
// Where the platform's documentation leaves room, these stand-ins do the following:
// - Hidden assets are left out of every fetch of assets unless the options include them. Two collections
//   hold what the rule would always empty, so there it does not apply: the smart album of hidden assets and
//   the trash bin.
// - Assets in the trash appear in the trash bin only. They keep their albums, for when they are restored.
// - Without sort descriptors assets come by creation date, oldest first; those of a user album in the
//   album's order; albums in the user's order; smart albums by subtype.
// - Assets can be sorted by creationDate, collections not at all; everything else raises
//   NSInvalidArgumentException. Predicates are evaluated by key-value coding.
// - Including hidden assets makes no difference to which collections a fetch of collections returns.
// - The trash bin is a smart album (subtype 1000000201), and a transient collection a regular album.
// - Only regular albums (subtype 2) can be edited.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

namespace simulator {
struct Collection;
} // namespace simulator

@class UIImage;

typedef NS_ENUM(NSInteger, PHAssetMediaType) {
    PHAssetMediaTypeImage = 1,
    PHAssetMediaTypeVideo = 2,
};

typedef NS_ENUM(NSInteger, PHAssetCollectionType) {
    PHAssetCollectionTypeAlbum = 1,
    PHAssetCollectionTypeSmartAlbum = 2,
    PHAssetCollectionTypeMoment = 3,
};

typedef NS_ENUM(NSInteger, PHAssetCollectionSubtype) {
    PHAssetCollectionSubtypeAlbumRegular = 2,
    PHAssetCollectionSubtypeSmartAlbumPanoramas = 201,
    PHAssetCollectionSubtypeSmartAlbumVideos = 202,
    PHAssetCollectionSubtypeSmartAlbumFavorites = 203,
    PHAssetCollectionSubtypeSmartAlbumTimelapses = 204,
    PHAssetCollectionSubtypeSmartAlbumAllHidden = 205,
    PHAssetCollectionSubtypeSmartAlbumBursts = 207,
    PHAssetCollectionSubtypeSmartAlbumSlomoVideos = 208,
    PHAssetCollectionSubtypeSmartAlbumUserLibrary = 209,
    PHAssetCollectionSubtypeSmartAlbumSelfPortraits = 210,
    PHAssetCollectionSubtypeSmartAlbumScreenshots = 211,
    PHAssetCollectionSubtypeSmartAlbumDepthEffect = 212,
    PHAssetCollectionSubtypeSmartAlbumLivePhotos = 213,
    PHAssetCollectionSubtypeSmartAlbumLongExposures = 215,
    PHAssetCollectionSubtypeAny = NSIntegerMax,
};

typedef NS_ENUM(NSInteger, PHCollectionListType) { PHCollectionListTypeFolder = 2 };
typedef NS_ENUM(NSInteger, PHCollectionListSubtype) { PHCollectionListSubtypeAny = NSIntegerMax };

typedef NS_ENUM(NSInteger, PHCollectionEditOperation) {
    PHCollectionEditOperationRemoveContent = 2,
    PHCollectionEditOperationAddContent = 3,
};

typedef NS_ENUM(NSInteger, PHImageContentMode) {
    PHImageContentModeAspectFit = 0,
    PHImageContentModeAspectFill = 1,
};
typedef NS_ENUM(NSInteger, PHImageRequestOptionsResizeMode) { PHImageRequestOptionsResizeModeExact = 2 };
typedef int32_t PHImageRequestID;

/// Asks for the picture in its own size.
extern const CGSize PHImageManagerMaximumSize;

@class PHAsset, PHAssetCollection, PHCollectionList, PHFetchResult;

/// Says which objects a fetch returns, and in which order.
@interface PHFetchOptions : NSObject {
    NSPredicate* _predicate;
    NSArray* _sortDescriptors;
    BOOL _includeHiddenAssets;
}
@property (nonatomic, retain) NSPredicate* predicate;
@property (nonatomic, copy) NSArray* sortDescriptors;
/// NO unless set.
@property (nonatomic, assign) BOOL includeHiddenAssets;
@end

/// What assets and collections have in common: an identifier that is theirs for ever.
@interface PHObject : NSObject {
    NSString* _localIdentifier;
}
@property (nonatomic, readonly, copy) NSString* localIdentifier;
@end

/// Stands for an object that a change creates, before the change is made.
@interface PHObjectPlaceholder : PHObject
@end

/// A photo or a video.
@interface PHAsset : PHObject {
    PHAssetMediaType _mediaType;
    NSUInteger _mediaSubtypes;
    BOOL _hidden;
    BOOL _favorite;
}
+ (PHFetchResult*)fetchAssetsWithOptions:(PHFetchOptions*)options;
/// In the order of the identifiers; none of the trash.
+ (PHFetchResult*)fetchAssetsWithLocalIdentifiers:(NSArray*)identifiers options:(PHFetchOptions*)options;
+ (PHFetchResult*)fetchAssetsWithMediaType:(PHAssetMediaType)mediaType options:(PHFetchOptions*)options;
+ (PHFetchResult*)fetchAssetsInAssetCollection:(PHAssetCollection*)collection
                                       options:(PHFetchOptions*)options;
/// At most three assets that stand for the collection: the first of an album, the newest of a smart album or
/// moment. nil when the collection shows none.
+ (PHFetchResult*)fetchKeyAssetsInAssetCollection:(PHAssetCollection*)collection
                                          options:(PHFetchOptions*)options;

@property (nonatomic, readonly) PHAssetMediaType mediaType;
@property (nonatomic, readonly) NSUInteger mediaSubtypes;
@property (nonatomic, readonly, getter=isHidden) BOOL hidden;
@property (nonatomic, readonly, getter=isFavorite) BOOL favorite;
@end

/// What folders and albums have in common.
@interface PHCollection : PHObject {
    const simulator::Collection* _record;
}
/// The user's albums and folders outside every folder, in the user's order.
+ (PHFetchResult*)fetchTopLevelUserCollectionsWithOptions:(PHFetchOptions*)options;
+ (PHFetchResult*)fetchCollectionsInCollectionList:(PHCollectionList*)list options:(PHFetchOptions*)options;
/// nil for an untitled collection.
- (NSString*)localizedTitle;
@end

/// An album, a smart album or a moment.
@interface PHAssetCollection : PHCollection {
    NSArray* _transientIdentifiers;
}
+ (PHFetchResult*)fetchAssetCollectionsWithType:(PHAssetCollectionType)type
                                        subtype:(PHAssetCollectionSubtype)subtype
                                        options:(PHFetchOptions*)options;
/// Albums and smart albums in the order of the identifiers; unknown ones are left out.
+ (PHFetchResult*)fetchAssetCollectionsWithLocalIdentifiers:(NSArray*)identifiers
                                                    options:(PHFetchOptions*)options;
/// Only albums are ever in the result.
+ (PHFetchResult*)fetchAssetCollectionsContainingAsset:(PHAsset*)asset
                                              withType:(PHAssetCollectionType)type
                                               options:(PHFetchOptions*)options;
/// A collection that is in no library: a list of assets, which is read afresh at every fetch, and a title.
+ (PHAssetCollection*)transientAssetCollectionWithAssets:(NSArray*)assets title:(NSString*)title;

- (NSString*)title;
- (PHAssetCollectionType)assetCollectionType;
- (PHAssetCollectionSubtype)assetCollectionSubtype;
- (BOOL)isTrashBin;
- (BOOL)canPerformEditOperation:(PHCollectionEditOperation)operation;
@end

/// A folder of albums and folders.
@interface PHCollectionList : PHCollection {
    NSArray* _transientCollections;
}
+ (PHFetchResult*)fetchCollectionListsWithType:(PHCollectionListType)type
                                       subtype:(PHCollectionListSubtype)subtype
                                       options:(PHFetchOptions*)options;
+ (PHCollectionList*)transientCollectionListWithCollections:(NSArray*)collections title:(NSString*)title;
+ (PHCollectionList*)transientCollectionListWithCollectionsFetchResult:(PHFetchResult*)result
                                                                 title:(NSString*)title;
/// The folder's content: read from the store at each call, or what a transient list was made of.
- (NSArray*)collections;
@end

/// The ordered outcome of one fetch.
@interface PHFetchResult : NSObject <NSFastEnumeration> {
    NSArray* _objects;
}
- (NSUInteger)count;
- (id)firstObject;
- (id)lastObject;
/// Raises NSRangeException for an index that is not below `count`.
- (id)objectAtIndex:(NSUInteger)index;
- (void)enumerateObjectsUsingBlock:(void (^)(id object, NSUInteger index, BOOL* stop))block;
- (NSArray*)fetchedObjects;
- (NSSet*)fetchedObjectIDsSet;
@end

typedef NS_ENUM(NSInteger, PHAuthorizationStatus) {
    PHAuthorizationStatusNotDetermined = 0,
    PHAuthorizationStatusRestricted = 1,
    PHAuthorizationStatusDenied = 2,
    PHAuthorizationStatusAuthorized = 3,
};

/// The library that is changed. Change blocks and completion handlers run on one serial background queue:
/// block, transaction, handler, then the next change.
@interface PHPhotoLibrary : NSObject
+ (PHPhotoLibrary*)sharedPhotoLibrary;
/// Neither asks nor ends the application.
+ (PHAuthorizationStatus)authorizationStatus;
/// Everything that the block requests is done, or nothing. The handler may be nil.
- (void)performChanges:(void (^)(void))changes
     completionHandler:(void (^)(BOOL success, NSError* error))handler;
/// The same, waiting for the end; not from a change block or a completion handler.
- (BOOL)performChangesAndWait:(void (^)(void))changes error:(NSError**)error;
@end

/// A request for one change. Making or using one outside its change block raises
/// NSInternalInconsistencyException.
@interface PHChangeRequest : NSObject {
    NSString* _identifier;
    uint64_t _change;
}
@end

@interface PHAssetCollectionChangeRequest : PHChangeRequest {
    PHObjectPlaceholder* _placeholder;
}
+ (instancetype)creationRequestForAssetCollectionWithTitle:(NSString*)title;
/// nil for a collection that cannot be edited.
+ (instancetype)changeRequestForAssetCollection:(PHAssetCollection*)collection;
+ (instancetype)changeRequestForAssetCollection:(PHAssetCollection*)collection assets:(PHFetchResult*)assets;
+ (void)deleteAssetCollections:(id<NSFastEnumeration>)collections;
/// nil unless the request creates a collection.
- (PHObjectPlaceholder*)placeholderForCreatedAssetCollection;
/// Assets already in the album stay where they are.
- (void)addAssets:(id<NSFastEnumeration>)assets;
- (void)removeAssets:(id<NSFastEnumeration>)assets;
@end

@interface PHAssetChangeRequest : PHChangeRequest
/// A new photo, taken now.
+ (instancetype)creationRequestForAssetFromImage:(UIImage*)image;
/// A new video, taken now. The simulator keeps no footage, so the file is not read and need not be there.
+ (instancetype)creationRequestForAssetFromVideoAtFileURL:(NSURL*)file;
+ (instancetype)changeRequestForAsset:(PHAsset*)asset;
/// Moves assets to the trash, and those that are there out of the library.
+ (void)deleteAssets:(id<NSFastEnumeration>)assets;
/// Takes assets out of the trash.
+ (void)undeleteAssets:(id<NSFastEnumeration>)assets;
- (void)setHidden:(BOOL)hidden;
@end

@interface PHImageRequestOptions : NSObject {
    PHImageRequestOptionsResizeMode _resizeMode;
    BOOL _synchronous;
}
@property (nonatomic, assign) PHImageRequestOptionsResizeMode resizeMode;
@property (nonatomic, assign, getter=isSynchronous) BOOL synchronous;
@end

/// Delivers the pictures of assets.
@interface PHImageManager : NSObject
+ (PHImageManager*)defaultManager;
/// The target size is in pixels. A synchronous request calls the handler before it returns, another one later
/// on the main thread; either calls it once. The image lives no longer than the handler's call unless
/// retained; it is nil when there is no such asset. A picture that was stored comes in its own size.
- (PHImageRequestID)requestImageForAsset:(PHAsset*)asset
                              targetSize:(CGSize)targetSize
                             contentMode:(PHImageContentMode)contentMode
                                 options:(PHImageRequestOptions*)options
                           resultHandler:(void (^)(UIImage* image, NSDictionary* info))handler;
@end
