#import "Photos/Photos+Making.h"

#import "Dispatch/Dispatch.h"
#import "UIKit/UIKit.h"

#include <algorithm>
#include <atomic>
#include <cmath>

const CGSize PHImageManagerMaximumSize = {-1, -1};

namespace {

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

/// nil when the asset is in the library no more.
UIImage* imageOf(PHAsset* asset, CGSize target, PHImageContentMode mode) {
    const std::string identifier = simulator::text([asset localIdentifier]);
    return simulator::withLibrary([&](simulator::PhotoLibrary& library) -> UIImage* {
        if (const std::optional<std::string> png = library.storedPicture(identifier))
            return [UIImage imageWithData:[NSData dataWithBytes:png->data() length:png->size()]];
        const std::optional<simulator::Asset> record = library.asset(identifier);
        if (!record) return nil;
        return [UIImage imageWithPixelSize:pixelSize(*record, target, mode)
                                      seed:static_cast<NSUInteger>(record->seed)];
    });
}

} // namespace

@implementation PHImageRequestOptions

@synthesize resizeMode = _resizeMode;
@synthesize synchronous = _synchronous;

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
    static std::atomic<PHImageRequestID> lastRequest = 0;
    void (^deliver)(void) = ^{
        @autoreleasepool {
            if (handler) handler(imageOf(asset, targetSize, contentMode), @{});
        }
    };
    if ([options isSynchronous])
        deliver();
    else
        dispatch_async(dispatch_get_main_queue(), deliver);
    return ++lastRequest;
}

@end
