// How controllers come on the screen and go, by themselves and as the children of a container.
#pragma once

#import "UIKit/UIViewController.h"

@interface UIViewController (Appearance)

// Tell the controller, and the child of it that is shown, that it comes on the screen or leaves it. Nothing
// happens to a controller that is there, or gone, already.
- (void)willChangeAppearance:(BOOL)appears animated:(BOOL)animated;
- (void)didChangeAppearance:(BOOL)appears animated:(BOOL)animated;

@end

@interface UIViewController (Container)

@property (nonatomic, readonly, assign) UIViewController* parentViewController;
// Setting it adopts the new children; those that it leaves keep their parent until they are disowned.
@property (nonatomic, copy) NSArray* childViewControllers;
// Those of the children that are the container's no longer have no parent from now on.
- (void)disown:(NSArray*)children;

// The child that a container shows at the moment, and where in its view; nil and empty unless overridden.
- (UIViewController*)shownChild;
- (CGRect)contentFrame;
// Puts the shown child's view, below the bars, in the place of the old one's, telling both when the
// container itself is on the screen. Either may be nil.
- (void)showChildInsteadOf:(UIViewController*)old animated:(BOOL)animated;

@end

@interface UIViewController (Popover)

// Whether it would be shown as a popover, which must point at something: on pads only, elsewhere the
// presentation adapts.
- (BOOL)isShownAsPopover;

@end
