// The share sheet: lists the activities that can handle what is shared and performs the chosen one.
#pragma once

#import "UIKit/UIViewController.h"

// One thing that the share sheet can do.
@interface UIActivity : NSObject

- (NSString*)activityTitle;
- (BOOL)canPerformWithActivityItems:(NSArray*)items;
- (void)prepareWithActivityItems:(NSArray*)items;
- (void)performActivity;

@end

// Saves the shared images into the photo library, asynchronously.
@interface UISaveToCameraRollActivity : UIActivity {
  @private
    NSArray* _images;
}

// How many of the shared items are images.
- (NSInteger)imageCount;

@end

@interface UIActivityViewController : UIViewController {
  @private
    NSArray* _activityItems;
    NSArray* _activities;
}

- (instancetype)initWithActivityItems:(NSArray*)items applicationActivities:(NSArray*)activities;

@end

// What a user sees of the sheet and does to it.
@interface UIActivityViewController (Input)

// The activities that can perform with the items: the system's own, then the application's.
- (NSArray*)offeredActivities;
// Prepares and performs the offered activity of that title; the sheet goes first. NO when no
// offered activity has the title.
- (BOOL)chooseActivityWithTitle:(NSString*)title;

@end
