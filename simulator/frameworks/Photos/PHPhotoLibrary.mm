#import "Photos/Photos+Making.h"

#import "Dispatch/Dispatch.h"

#include "device/conditions.h"
#include "device/process.h"

#include <stdexcept>

namespace {

constexpr NSInteger changeFailed = -1;

dispatch_queue_t changeQueue() {
    static dispatch_queue_t queue = dispatch_queue_create("photo library changes", DISPATCH_QUEUE_SERIAL);
    return queue;
}

/// On the change queue; nil when the change was made.
NSError* commit(const simulator::Change& change) {
    const auto failure = simulator::standardExceptionOf([&] {
        if (simulator::currentConditions()->faults.refuseLibraryChanges)
            throw std::runtime_error("the photo library refuses changes");
        simulator::sharedPhotoLibrary().apply(change);
    });
    if (!failure) return nil;
    return [NSError errorWithDomain:NSCocoaErrorDomain
                               code:changeFailed
                           userInfo:@{NSLocalizedDescriptionKey : simulator::string(*failure)}];
}

} // namespace

namespace simulator {

void endUnlessFetchingIsSafe() {
    if (currentRelease() < Release::ios10_1 || hostBundleIdentifier().empty()) return;
    if ([PHPhotoLibrary authorizationStatus] == PHAuthorizationStatusAuthorized) return;
    if (!hostDescribesUsage(photoUsage)) endForMissingDescription(photoUsage);
}

} // namespace simulator

@implementation PHPhotoLibrary

+ (PHAuthorizationStatus)authorizationStatus {
    using simulator::PhotoAccess;
    const PhotoAccess access = simulator::currentConditions()->photoAccess;
    if (access != PhotoAccess::ifAsked)
        return static_cast<PHAuthorizationStatus>(static_cast<int>(access) -
                                                  static_cast<int>(PhotoAccess::notDetermined));
    const bool canAsk = simulator::currentRelease() < simulator::Release::ios10_1 ||
                        simulator::hostDescribesUsage(simulator::photoUsage);
    return canAsk ? PHAuthorizationStatusAuthorized : PHAuthorizationStatusNotDetermined;
}

+ (PHPhotoLibrary*)sharedPhotoLibrary {
    static PHPhotoLibrary* library = [[PHPhotoLibrary alloc] init];
    return library;
}

- (void)performChanges:(void (^)(void))changes
     completionHandler:(void (^)(BOOL success, NSError* error))handler {
    dispatch_async(changeQueue(), ^{
        const simulator::Change change = simulator::changeMadeBy(changes);
        void (^end)() = ^{
            @autoreleasepool {
                NSError* error = commit(change);
                if (handler) handler(error == nil ? YES : NO, error);
            }
        };
        const double seconds =
            change.deletesCollection() ? simulator::currentConditions()->albumDeletionTime : 0;
        if (seconds > 0)
            dispatch_after(dispatch_time(DISPATCH_TIME_NOW, static_cast<int64_t>(seconds * NSEC_PER_SEC)),
                           changeQueue(), end);
        else
            end();
    });
}

- (BOOL)performChangesAndWait:(void (^)(void))changes error:(NSError**)error {
    __block NSError* failure = nil;
    dispatch_sync(changeQueue(), ^{
        @autoreleasepool {
            failure = [commit(simulator::changeMadeBy(changes)) retain];
        }
    });
    [failure autorelease];
    if (error != nullptr) *error = failure;
    return failure == nil ? YES : NO;
}

@end
