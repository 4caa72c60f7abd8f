#pragma once

#import <Foundation/Foundation.h>

/// The output of a capture session that takes photos.
@interface AVCapturePhotoOutput : NSObject
@end

/// The settings that a capture really used.
@interface AVCaptureResolvedPhotoSettings : NSObject {
    int64_t _uniqueID;
}
/// Tells this capture from every other one of the process.
@property (nonatomic, readonly) int64_t uniqueID;
- (instancetype)initWithUniqueID:(int64_t)uniqueID;
@end
