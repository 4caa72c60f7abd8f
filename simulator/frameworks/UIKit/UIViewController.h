// A screenful: a view that is loaded when first asked for, told when it appears, and what it presents on
// top.
#pragma once

#import "UIKit/UIView.h"

@class UINavigationController, UINavigationItem, UIPopoverPresentationController, UITabBarController,
    UITabBarItem;
@protocol UIViewControllerTransitionCoordinator;

typedef NS_ENUM(NSInteger, UIStatusBarStyle) {
    UIStatusBarStyleDefault = 0, // black
    UIStatusBarStyleLightContent = 1,
};

typedef NS_ENUM(NSInteger, UIModalPresentationStyle) {
    UIModalPresentationFullScreen = 0,
    UIModalPresentationCustom = 4,
    UIModalPresentationPopover = 7,
};

@interface UIViewController : UIResponder {
  @private
    UIView* _view;
    NSString* _title;
    UINavigationItem* _navigationItem;
    UITabBarItem* _tabBarItem;
    NSArray* _toolbarItems;
    NSArray* _childViewControllers;
    UIViewController* _parentViewController; // not retained: it retains this controller
    UIViewController* _presented;
    UIViewController* _presenting; // not retained: it retains this controller
    UIPopoverPresentationController* _popover;
    void (^_endOfTransition)(void); // of what this controller presents; nil when none is under way
    unsigned _transitionNumber;
    UIModalPresentationStyle _modalPresentationStyle;
    BOOL _editing;
    BOOL _appeared;
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

@property (nonatomic, readonly, assign) UINavigationController* navigationController;
@property (nonatomic, readonly, assign) UITabBarController* tabBarController;
@property (nonatomic, readonly, retain) UINavigationItem* navigationItem;
@property (nonatomic, retain) UITabBarItem* tabBarItem;
@property (nonatomic, readonly, copy) NSArray* toolbarItems;
- (void)setToolbarItems:(NSArray*)items animated:(BOOL)animated;

// Of the system's bar at the top, while this controller is shown; subclasses say otherwise.
- (BOOL)prefersStatusBarHidden;
- (UIStatusBarStyle)preferredStatusBarStyle;

@property (nonatomic) UIModalPresentationStyle modalPresentationStyle;

@end

@interface UIViewController (Presentation)

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
