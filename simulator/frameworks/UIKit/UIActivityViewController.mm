#import "UIKit/UIActivityViewController.h"

#import "UIKit/UIImage.h"
#import "UIKit/internal/Ownership.h"

#include <objc/runtime.h>

using simulator::Retained;

// The part of the photo library that saving needs; the library is looked up by name, because a process need
// not have it loaded.
@protocol PhotoLibrarySaving
+ (id)sharedPhotoLibrary;
- (void)performChanges:(void (^)(void))changes
     completionHandler:(void (^)(BOOL success, NSError* error))handler;
+ (id)creationRequestForAssetFromImage:(UIImage*)image;
@end

@implementation UISaveToCameraRollActivity

- (void)dealloc {
    [_images release];
    [super dealloc];
}

- (NSString*)activityTitle {
    const NSInteger count = [self imageCount];
    return count > 1 ? [NSString stringWithFormat:@"Save %ld Images", static_cast<long>(count)]
                     : @"Save Image";
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
    const Retained<NSArray*> images(_images); // blocks on Linux retain no objects by themselves
    [library
           performChanges:^{
               for (UIImage* image in images.get())
                   [request creationRequestForAssetFromImage:image];
           }
        completionHandler:nil];
}

@end

@implementation UIActivityViewController

- (instancetype)initWithActivityItems:(NSArray*)items applicationActivities:(NSArray*)activities {
    self = [super init];
    auto* save = [[[UISaveToCameraRollActivity alloc] init] autorelease];
    [save prepareWithActivityItems:items];
    _activities = [[[NSArray arrayWithObject:save] arrayByAddingObjectsFromArray:activities] copy];
    [self setModalPresentationStyle:UIModalPresentationPopover]; // adapts to a sheet on a phone
    return self;
}

- (void)dealloc {
    [_activities release];
    [super dealloc];
}

@end

@implementation UIActivityViewController (Input)

- (NSArray*)offeredActivities {
    return _activities;
}

- (BOOL)chooseActivityWithTitle:(NSString*)title {
    for (id activity in _activities) {
        if (![[activity activityTitle] isEqualToString:title]) continue;
        const Retained<> chosen(activity);
        // The sheet makes way first, so that the activity may present something of its own.
        [self dismissViewControllerAnimated:YES
                                 completion:^{
                                     [chosen.get() performActivity];
                                 }];
        return YES;
    }
    return NO;
}

@end
