// What a hard press shows first, and then opens.
#pragma once

#import "UIKit/UIViewController.h"

@protocol UIViewControllerPreviewing <NSObject>
@property (nonatomic, readonly) UIView* sourceView;
// What stays sharp while everything around it blurs; in the source view.
@property (nonatomic) CGRect sourceRect;
@end

@protocol UIViewControllerPreviewingDelegate <NSObject>
// What to show for a press at that place of the source view; nil for nothing, and then nothing opens.
- (UIViewController*)previewingContext:(id<UIViewControllerPreviewing>)context
             viewControllerForLocation:(CGPoint)location;
// The press went on: opens what was shown.
- (void)previewingContext:(id<UIViewControllerPreviewing>)context
     commitViewController:(UIViewController*)controller;
@end

@interface UIViewController (Previewing)

// The delegate is not retained.
- (id<UIViewControllerPreviewing>)registerForPreviewingWithDelegate:
                                      (id<UIViewControllerPreviewingDelegate>)delegate
                                                         sourceView:(UIView*)sourceView;

@end
