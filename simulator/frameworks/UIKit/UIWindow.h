// The root of a view tree.
#pragma once

#import "UIKit/UIView.h"

@class UIViewController;

@interface UIWindow : UIView {
  @private
    UIViewController* _rootViewController;
}

// Setting it puts the controller's view into the window at the window's size.
@property (nonatomic, retain) UIViewController* rootViewController;

- (void)makeKeyAndVisible;

@end
