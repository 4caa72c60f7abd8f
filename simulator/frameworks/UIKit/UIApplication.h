// The one application object of a process, of the class that the host chooses, with its window and life
// cycle.
#pragma once

#import "UIKit/UIView.h"

@class UIWindow;

@interface UIApplication : UIResponder {
  @private
    UIWindow* _keyWindow;
    BOOL _inBackground;
}

// nil until the application has started. The first instance made becomes the shared one.
+ (UIApplication*)sharedApplication;

// The window that the user works with; the applications have no other.
@property (nonatomic, retain) UIWindow* keyWindow;

@end

// The application's life, told to a subclass of UIApplication; who implements none hears nothing.
@protocol UIApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(UIApplication*)application;
- (void)applicationDidEnterBackground:(UIApplication*)application;
@end

// What the device does to an application.
@interface UIApplication (LifeCycle)

// Makes the shared application of the class (a subclass of UIApplication) and sends it through its start.
// Raises when there already is one.
+ (UIApplication*)startApplicationOfClass:(Class)applicationClass;
// As when the home button is pressed.
- (void)enterBackground;
- (void)enterForeground;

@end
