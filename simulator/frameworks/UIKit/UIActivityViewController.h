// The share sheet: lists the activities that can handle what is shared and performs the chosen one.
#pragma once

#import "UIKit/UIActivity.h"
#import "UIKit/UIViewController.h"

@interface UIActivityViewController : UIViewController {
  @private
    NSArray* _activityItems;
    NSArray* _activities;
    void (^_completion)(NSString* type, BOOL completed, NSArray* returnedItems, NSError* error);
}

- (instancetype)initWithActivityItems:(NSArray*)items applicationActivities:(NSArray*)activities;

@property (nonatomic, copy) void (^completionWithItemsHandler)
    (NSString* type, BOOL completed, NSArray* returnedItems, NSError* error);

@end

// What a user sees of the sheet and does to it.
@interface UIActivityViewController (Input)

// The activities that can perform with the items: the system's own, then the application's.
- (NSArray*)offeredActivities;
// Prepares and performs the offered activity of that title; the sheet goes first. NO when no
// offered activity has the title.
- (BOOL)chooseActivityWithTitle:(NSString*)title;

@end
