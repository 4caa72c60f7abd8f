#import "Photos/Photos+Making.h"

#import "UIKit/UIKit.h"

#include "device/threads.h"

#include <algorithm>
#include <cmath>
#include <set>

const CGSize PHImageManagerMaximumSize = {-1, -1};
NSString* const PHImageResultIsDegradedKey = @"PHImageResultIsDegradedKey";
NSString* const PHImageResultRequestIDKey = @"PHImageResultRequestIDKey";
NSString* const PHImageErrorKey = @"PHImageErrorKey";

namespace {

using ResultHandler = void (^)(UIImage* image, NSDictionary* info);

/// The requests whose handlers have not run yet.
class PendingRequests {
  public:
    PHImageRequestID add() {
        const std::lock_guard lock(m_mutex);
        m_pending.insert(++m_last);
        return m_last;
    }
    /// Whether the request was still pending.
    bool take(PHImageRequestID request) {
        const std::lock_guard lock(m_mutex);
        return m_pending.erase(request) == 1;
    }

  private:
    std::mutex m_mutex;
    std::set<PHImageRequestID> m_pending;
    PHImageRequestID m_last = 0;
};

PendingRequests& pendingRequests() {
    static auto* requests = new PendingRequests;
    return *requests;
}

/// The asset's size scaled to the target, never up.
CGSize pixelSize(const simulator::Asset& asset, CGSize target, PHImageContentMode mode) {
    const double width = static_cast<double>(asset.width);
    const double height = static_cast<double>(asset.height);
    if (target.width < 0 || target.height < 0) return CGSizeMake(width, height);
    const double across = target.width / width;
    const double down = target.height / height;
    const double wanted =
        mode == PHImageContentModeAspectFill ? std::max(across, down) : std::min(across, down);
    const double scale = std::min(1.0, wanted);
    return CGSizeMake(std::max(1.0, std::round(width * scale)), std::max(1.0, std::round(height * scale)));
}

/// nil when the asset is in the library no more. A picture that was stored comes in its own size.
UIImage* imageOf(PHAsset* asset, CGSize target, PHImageContentMode mode) {
    if (!asset) return nil;
    const std::string identifier = simulator::textOf([asset localIdentifier]);
    return simulator::withLibrary([&](simulator::PhotoLibrary& library) -> UIImage* {
        if (const std::optional<std::string> png = library.storedPicture(identifier))
            return [UIImage imageWithData:[NSData dataWithBytes:png->data() length:png->size()]];
        const std::optional<simulator::Asset> record = library.asset(identifier);
        if (!record) return nil;
        return [UIImage imageWithPixelSize:pixelSize(*record, target, mode)
                                      seed:static_cast<NSUInteger>(record->seed)];
    });
}

NSDictionary* infoOf(PHImageRequestID request, UIImage* image) {
    NSMutableDictionary* info = [NSMutableDictionary dictionary];
    [info setObject:[NSNumber numberWithInt:request] forKey:PHImageResultRequestIDKey];
    [info setObject:[NSNumber numberWithBool:NO] forKey:PHImageResultIsDegradedKey];
    if (!image)
        [info setObject:[NSError errorWithDomain:PHPhotosErrorDomain code:-1 userInfo:nil]
                 forKey:PHImageErrorKey];
    return info;
}

std::shared_ptr<void> owned(id object) {
    return {[object retain], [](void* pointer) { [static_cast<id>(pointer) release]; }};
}

std::shared_ptr<void> ownedBlock(ResultHandler block) {
    return {_Block_copy(block), [](void* pointer) { _Block_release(pointer); }};
}

} // namespace

@implementation PHImageRequestOptions

@synthesize resizeMode = _resizeMode;
@synthesize synchronous = _synchronous;

- (id)copyWithZone:(NSZone*)zone {
    PHImageRequestOptions* copy = [[PHImageRequestOptions allocWithZone:zone] init];
    copy.resizeMode = _resizeMode;
    copy.synchronous = _synchronous;
    return copy;
}

@end

@implementation PHImageManager

+ (PHImageManager*)defaultManager {
    static PHImageManager* manager = [[PHImageManager alloc] init];
    return manager;
}

- (PHImageRequestID)requestImageForAsset:(PHAsset*)asset
                              targetSize:(CGSize)targetSize
                             contentMode:(PHImageContentMode)contentMode
                                 options:(PHImageRequestOptions*)options
                           resultHandler:(void (^)(UIImage* image, NSDictionary* info))handler {
    const PHImageRequestID request = pendingRequests().add();
    const auto deliver = [=](PHAsset* wanted, ResultHandler receiver) {
        if (!pendingRequests().take(request) || !receiver) return;
        @autoreleasepool {
            UIImage* image = imageOf(wanted, targetSize, contentMode);
            receiver(image, infoOf(request, image));
        }
    };
    if ([options isSynchronous]) {
        deliver(asset, handler);
        return request;
    }
    simulator::performOnMainThread([deliver, keptAsset = owned(asset), keptHandler = ownedBlock(handler)] {
        deliver(static_cast<PHAsset*>(keptAsset.get()), reinterpret_cast<ResultHandler>(keptHandler.get()));
    });
    return request;
}

- (void)cancelImageRequest:(PHImageRequestID)request {
    pendingRequests().take(request);
}

@end
