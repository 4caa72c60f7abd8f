#pragma once

#import "Photos/Photos.h"

/// Hides photos from the library's own views, or shows them again; they stay in their albums.
@interface PUAssetHidingHelper : NSObject {
    NSArray* _assets;
}
/// The photos to work on (PHAsset); must be an array or nil, anything else raises.
@property (nonatomic, copy) NSArray* assets;
- (instancetype)init;
/// Changes the photos in the library, on the library's own queue, and calls the handler there; the handler
/// may be nil. A refused change leaves every photo as it was.
- (void)applyHiddenState:(BOOL)hidden completionHandler:(void (^)(BOOL success, NSError* error))handler;
@end
