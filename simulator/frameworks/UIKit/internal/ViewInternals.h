// What the parts of this stand-in that work on the view tree need to know of a view.
#pragma once

#import "UIKit/UIView.h"

@interface UIView ()

// The controller whose view this is.
@property (nonatomic, assign) UIViewController* viewController;
// How many animations are under way that keep touches from this view.
@property (nonatomic) NSInteger animationsWithoutTouches;

@end

namespace simulator {

// The frame of a subview after the bounds of its superview went from one size to another: what is flexible
// takes its share of the change in proportion to its length, or an equal share where all flexible parts have
// no length.
CGRect autoresizedFrame(CGRect frame, UIViewAutoresizing mask, CGSize before, CGSize after);

// Geometry or opacity of a view changes: an animation under way takes note.
void noteChange(UIView* view);

// Lays out the window now, instead of at the end of this turn of the main run loop.
void layoutWindows();

} // namespace simulator
