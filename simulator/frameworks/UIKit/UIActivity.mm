#import "UIKit/UIActivity.h"

#import "UIKit/UIImage.h"
#import "UIKit/internal/ActivityCompletion.h"
#include "device/threads.h"

#include <objc/runtime.h>

// The part of the photo library that saving needs; the library is looked up by name, because a process need
// not have it loaded.
@protocol PhotoLibrarySaving
+ (id)sharedPhotoLibrary;
- (void)performChanges:(void (^)(void))changes
     completionHandler:(void (^)(BOOL success, NSError* error))handler;
+ (id)creationRequestForAssetFromImage:(UIImage*)image;
@end

@implementation UIActivity

- (void)dealloc {
    if (_finishHandler) Block_release(_finishHandler);
    [super dealloc];
}

- (NSString*)activityType {
    return NSStringFromClass([self class]);
}

- (NSString*)activityTitle {
    return nil;
}

- (UIImage*)activityImage {
    return nil;
}

- (BOOL)canPerformWithActivityItems:(NSArray*)items {
    return NO;
}

- (void)prepareWithActivityItems:(NSArray*)items {
}

- (UIViewController*)activityViewController {
    return nil;
}

- (void)performActivity {
}

- (void)setFinishHandler:(void (^)(BOOL completed))handler {
    // Letting go of the old one may free its sheet, which comes back here.
    const auto old = _finishHandler;
    _finishHandler = Block_copy(handler);
    if (old) Block_release(old);
}

- (void)activityDidFinish:(BOOL)completed {
    if (_finishHandler) _finishHandler(completed);
}

@end

@implementation UISaveToCameraRollActivity

- (void)dealloc {
    [_images release];
    [super dealloc];
}

- (NSString*)activityType {
    return @"com.apple.UIKit.activity.SaveToCameraRoll";
}

- (NSString*)activityTitle {
    const NSInteger count = [self imageCount];
    return count > 1 ? [NSString stringWithFormat:@"Save %ld Images", static_cast<long>(count)]
                     : @"Save Image";
}

- (BOOL)canPerformWithActivityItems:(NSArray*)items {
    for (id item in items)
        if ([item isKindOfClass:[UIImage class]]) return YES;
    return NO;
}

- (void)prepareWithActivityItems:(NSArray*)items {
    NSMutableArray* images = [NSMutableArray array];
    for (id item in items)
        if ([item isKindOfClass:[UIImage class]]) [images addObject:item];
    [_images autorelease];
    _images = [images copy];
}

- (NSInteger)imageCount {
    return static_cast<NSInteger>([_images count]);
}

- (void)performActivity {
    Class<PhotoLibrarySaving> request = objc_getClass("PHAssetChangeRequest");
    id<PhotoLibrarySaving> library =
        [(Class<PhotoLibrarySaving>)objc_getClass("PHPhotoLibrary") sharedPhotoLibrary];
    if (!library || !request) return [self activityDidFinish:NO];
    // Blocks on Linux retain no objects by themselves.
    const simulator::Retained<NSArray*> images(_images);
    const simulator::Retained<UIActivity*> alive(self);
    [library
        performChanges:^{
            for (UIImage* image in images.get())
                [request creationRequestForAssetFromImage:image];
        }
        completionHandler:^(BOOL success, NSError*) {
            simulator::performOnMainThread([alive, success] { [alive.get() activityDidFinish:success]; });
        }];
}

@end
