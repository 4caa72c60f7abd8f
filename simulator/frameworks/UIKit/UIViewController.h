// A screenful: a view that is loaded when first asked for, told when it appears, and what it presents on
// top.
#pragma once

#import "UIKit/UIResponder.h"
#import "UIKit/UIView.h"

@class UIBarButtonItem, UINavigationController, UINavigationItem, UIPopoverPresentationController,
    UITabBarController, UITabBarItem;

namespace simulator {
struct ControllerState;
}

typedef NS_ENUM(NSInteger, UIModalPresentationStyle) {
    UIModalPresentationFullScreen = 0,
    UIModalPresentationPageSheet = 1,
    UIModalPresentationFormSheet = 2,
    UIModalPresentationCurrentContext = 3,
    UIModalPresentationCustom = 4,
    UIModalPresentationOverFullScreen = 5,
    UIModalPresentationOverCurrentContext = 6,
    UIModalPresentationPopover = 7,
};

@protocol UIViewControllerTransitionCoordinator <NSObject>
// `completion` runs once the new size is in place; both blocks may be nil.
- (BOOL)animateAlongsideTransition:(void (^)(id context))animation
                        completion:(void (^)(id context))completion;
@end

@interface UIViewController : UIResponder {
  @private
    simulator::ControllerState* _controllerState;
}

@property (nonatomic, copy) NSString* title;
@property (nonatomic, retain) UIView* view;
- (UIView*)viewIfLoaded;
- (BOOL)isViewLoaded;
- (void)loadView;
- (void)loadViewIfNeeded;
- (void)viewDidLoad;

- (void)viewWillAppear:(BOOL)animated;
- (void)viewDidAppear:(BOOL)animated;
- (void)viewWillDisappear:(BOOL)animated;
- (void)viewDidDisappear:(BOOL)animated;
- (void)viewWillLayoutSubviews;
- (void)viewDidLayoutSubviews;
- (void)viewWillTransitionToSize:(CGSize)size
       withTransitionCoordinator:(id<UIViewControllerTransitionCoordinator>)coordinator;

@property (nonatomic, getter=isEditing) BOOL editing;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;
// A button for a bar that turns editing on and off.
- (UIBarButtonItem*)editButtonItem;

@property (nonatomic, readonly, assign) UIViewController* parentViewController;
@property (nonatomic, readonly) NSArray* childViewControllers;
- (void)addChildViewController:(UIViewController*)child;
- (void)removeFromParentViewController;
- (void)willMoveToParentViewController:(UIViewController*)parent;
- (void)didMoveToParentViewController:(UIViewController*)parent;
@property (nonatomic, readonly, assign) UINavigationController* navigationController;
@property (nonatomic, readonly, assign) UITabBarController* tabBarController;
@property (nonatomic, readonly, retain) UINavigationItem* navigationItem;
@property (nonatomic, retain) UITabBarItem* tabBarItem;
@property (nonatomic, copy) NSArray* toolbarItems;
- (void)setToolbarItems:(NSArray*)items animated:(BOOL)animated;

@property (nonatomic) CGSize preferredContentSize;

@end

@interface UIViewController (Presentation)

@property (nonatomic) UIModalPresentationStyle modalPresentationStyle;
@property (nonatomic, readonly, assign) UIViewController* presentedViewController;
@property (nonatomic, readonly, assign) UIViewController* presentingViewController;
// Not nil while the presentation style is a popover; also what an action sheet is anchored by on a pad.
@property (nonatomic, readonly) UIPopoverPresentationController* popoverPresentationController;
// Presented at once; `completion` (may be nil) runs on the main run loop when the transition is over.
// Refused with a line in the log when this controller already presents one or is not on the screen. Raises
// on a pad when a popover has no anchor.
- (void)presentViewController:(UIViewController*)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion;
// Takes away what this controller presents or, when it presents nothing, this controller itself.
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion;

@end
