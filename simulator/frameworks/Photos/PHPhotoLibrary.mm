#import "Photos/Photos+Making.h"

#import "Dispatch/Dispatch.h"

#include "Photos/ChangeScope.h"
#include "device/conditions.h"

NSString* const PHPhotosErrorDomain = @"PHPhotosErrorDomain";

namespace {

using Changes = void (^)(void);
using Completion = void (^)(BOOL success, NSError* error);

constexpr NSInteger changeFailed = -1;

dispatch_queue_t changeQueue() {
    static dispatch_queue_t queue = dispatch_queue_create("photo library changes", DISPATCH_QUEUE_SERIAL);
    return queue;
}

NSError* errorWithReason(const std::string& reason) {
    return [NSError errorWithDomain:NSCocoaErrorDomain
                               code:changeFailed
                           userInfo:@{NSLocalizedDescriptionKey : simulator::stringOf(reason)}];
}

/// nil when the change was made.
NSError* commit(const simulator::Change& change) {
    const auto failure = simulator::failureOf([&] {
        if (simulator::currentConditions()->faults.refuseLibraryChanges)
            throw std::runtime_error("the photo library refuses changes");
        simulator::sharedPhotoLibrary().apply(change);
    });
    return failure ? errorWithReason(*failure) : nil;
}

/// On the change queue.
NSError* perform(Changes changes) {
    simulator::ChangeScope scope;
    @autoreleasepool {
        changes();
    }
    return commit(scope.change());
}

} // namespace

@implementation PHPhotoLibrary

+ (PHPhotoLibrary*)sharedPhotoLibrary {
    static PHPhotoLibrary* library = [[PHPhotoLibrary alloc] init];
    return library;
}

- (void)performChanges:(void (^)(void))changes
     completionHandler:(void (^)(BOOL success, NSError* error))handler {
    dispatch_async(changeQueue(), ^{
        @autoreleasepool {
            NSError* error = perform(changes);
            if (handler) handler(error ? NO : YES, error);
        }
    });
}

- (BOOL)performChangesAndWait:(void (^)(void))changes error:(NSError**)error {
    __block NSError* failure = nil;
    dispatch_sync(changeQueue(), ^{
        @autoreleasepool {
            failure = [perform(changes) retain];
        }
    });
    [failure autorelease];
    if (error) *error = failure;
    return failure ? NO : YES;
}

@end
