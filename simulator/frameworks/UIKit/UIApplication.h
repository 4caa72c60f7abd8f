// The one application object of a process, of the class that the host chooses, with its windows and life
// cycle.
#pragma once

#import "UIKit/UIResponder.h"

@class UIWindow;

typedef NS_ENUM(NSInteger, UIApplicationState) {
    UIApplicationStateActive = 0,
    UIApplicationStateInactive = 1,
    UIApplicationStateBackground = 2,
};

@interface UIApplication : UIResponder {
  @private
    NSMutableArray* _windows;
    UIWindow* _keyWindow;
    UIApplicationState _applicationState;
    id _applicationDelegate;
}

// nil until the application has started. The first instance made becomes the shared one.
+ (UIApplication*)sharedApplication;

@property (nonatomic, readonly, assign) UIWindow* keyWindow;
@property (nonatomic, readonly) NSArray* windows;
@property (nonatomic, readonly) UIApplicationState applicationState;
// Not retained. The life cycle goes to the delegate where there is one, else to the application object
// itself.
@property (nonatomic, assign) id delegate;
- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender forEvent:(id)event;

@end

// The application's life, told to the delegate or to a subclass of UIApplication; who implements none hears
// nothing.
@protocol UIApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(UIApplication*)application;
- (void)applicationDidBecomeActive:(UIApplication*)application;
- (void)applicationWillResignActive:(UIApplication*)application;
- (void)applicationDidEnterBackground:(UIApplication*)application;
- (void)applicationWillEnterForeground:(UIApplication*)application;
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
