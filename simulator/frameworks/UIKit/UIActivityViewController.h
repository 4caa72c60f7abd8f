// The share sheet: offers what can be done with the shared items and does what is chosen.
#pragma once

#import "UIKit/UIViewController.h"

// Saves the images among the shared items into the photo library, asynchronously.
@interface UISaveToCameraRollActivity : NSObject {
  @private
    NSArray* _images;
}

- (NSString*)activityTitle;
- (void)prepareWithActivityItems:(NSArray*)items;
- (NSInteger)imageCount;
- (void)performActivity;

@end

@interface UIActivityViewController : UIViewController {
  @private
    NSArray* _activities;
}

- (instancetype)initWithActivityItems:(NSArray*)items applicationActivities:(NSArray*)activities;

@end

// What a user sees of the sheet and does to it.
@interface UIActivityViewController (Input)

// The system's own, then the application's.
- (NSArray*)offeredActivities;
// Performs the activity of that title; the sheet goes first. NO when none has the title.
- (BOOL)chooseActivityWithTitle:(NSString*)title;

@end
