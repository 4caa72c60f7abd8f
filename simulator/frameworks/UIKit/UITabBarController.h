// Several controllers, of which the bar at the bottom chooses one.
#pragma once

#import "UIKit/UIBarButtonItem.h"
#import "UIKit/UIViewController.h"

@interface UITabBar : UIView {
  @private
    NSArray* _items;
    UITabBarItem* _selectedItem;
}

@property (nonatomic, copy) NSArray* items;
@property (nonatomic, assign) UITabBarItem* selectedItem;
// Exists on a device with every name only: on real ones the getter of `hidden` is isHidden.
- (BOOL)hidden;

@end

@interface UITabBarController : UIViewController {
  @private
    UITabBar* _tabBar;
    UIViewController* _selectedViewController; // not retained: it is one of the children
}

@property (nonatomic, readonly) UITabBar* tabBar;
@property (nonatomic, copy) NSArray* viewControllers;
@property (nonatomic, assign) UIViewController* selectedViewController;

@end

// What a finger does to the bar.
@interface UITabBarController (Input)

// Shows the controller of that item, or what lies at the bottom of its stack when it is shown already.
- (void)tapItem:(UITabBarItem*)item;

@end
