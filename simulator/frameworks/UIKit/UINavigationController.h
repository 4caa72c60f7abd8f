// A stack of controllers under a bar that shows the title of the topmost.
#pragma once

#import "UIKit/UINavigationItem.h"
#import "UIKit/UIViewController.h"

@interface UINavigationBar : UIView {
  @private
    NSArray* _items;
}

// One item for each controller of the stack, the topmost last.
@property (nonatomic, copy) NSArray* items;
@property (nonatomic, readonly, assign) UINavigationItem* topItem;

@end

@interface UIToolbar : UIView {
  @private
    NSArray* _items;
}

@property (nonatomic, copy) NSArray* items;

@end

@interface UINavigationController : UIViewController {
  @private
    UINavigationBar* _navigationBar;
    UIToolbar* _toolbar;
}

- (instancetype)initWithRootViewController:(UIViewController*)root;

@property (nonatomic, readonly) UINavigationBar* navigationBar;
@property (nonatomic, readonly) UIToolbar* toolbar;
@property (nonatomic, getter=isToolbarHidden) BOOL toolbarHidden;
@property (nonatomic, readonly) NSArray* viewControllers;
@property (nonatomic, readonly, assign) UIViewController* topViewController;
- (void)pushViewController:(UIViewController*)controller animated:(BOOL)animated;
// The popped controller; nil when only the root is left.
- (UIViewController*)popViewControllerAnimated:(BOOL)animated;
// The popped controllers, empty when the root was on top.
- (NSArray*)popToRootViewControllerAnimated:(BOOL)animated;

@end
