// One thing that the share sheet can do with what is shared.
#pragma once

#import "UIKit/UIViewController.h"

@class UIImage;

@interface UIActivity : NSObject {
  @private
    void (^_finishHandler)(BOOL completed);
}

- (NSString*)activityType;
- (NSString*)activityTitle;
- (UIImage*)activityImage;
- (BOOL)canPerformWithActivityItems:(NSArray*)items;
- (void)prepareWithActivityItems:(NSArray*)items;
- (UIViewController*)activityViewController;
- (void)performActivity;
// Tells the share sheet that the work is over.
- (void)activityDidFinish:(BOOL)completed;

@end

// Saves the shared images into the photo library, asynchronously.
@interface UISaveToCameraRollActivity : UIActivity {
  @private
    NSArray* _images;
}

// How many of the shared items are images.
- (NSInteger)imageCount;

@end
