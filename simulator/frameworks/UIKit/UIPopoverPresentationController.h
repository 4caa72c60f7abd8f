// How one controller is shown over another, and what a popover's arrow points at.
#pragma once

#import "UIKit/UIViewController.h"

@class UIBarButtonItem;

@interface UIPresentationController : NSObject {
  @private
    UIViewController* _presentedViewController;
    UIView* _sourceView;
    CGRect _sourceRect;
}

- (instancetype)initWithPresentedViewController:(UIViewController*)controller;

// Not retained.
@property (nonatomic, readonly, assign) UIViewController* presentedViewController;
@property (nonatomic, retain) UIView* sourceView;
// In the source view's coordinates.
@property (nonatomic) CGRect sourceRect;

@end

@interface UIPopoverPresentationController : UIPresentationController {
  @private
    UIBarButtonItem* _barButtonItem;
    NSUInteger _permittedArrowDirections;
}

@property (nonatomic, retain) UIBarButtonItem* barButtonItem;
@property (nonatomic) NSUInteger permittedArrowDirections;

@end
