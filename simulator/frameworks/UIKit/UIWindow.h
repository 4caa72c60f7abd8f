// The root of a view tree; the application's key window is the one that the user works with.
#pragma once

#import "UIKit/UIView.h"

@class UIViewController;

@interface UIWindow : UIView {
  @private
    UIViewController* _rootViewController;
}

// Setting it puts the controller's view into the window at the window's size.
@property (nonatomic, retain) UIViewController* rootViewController;
@property (nonatomic, readonly, getter=isKeyWindow) BOOL keyWindow;

- (void)makeKeyWindow;
- (void)makeKeyAndVisible;

@end
