// What a view keeps behind its methods, for the parts of this stand-in that work on the view tree.
#pragma once

#import "UIKit/UIView.h"
#import "UIKit/internal/Ownership.h"
#include "UIKit/model/ViewGeometry.h"

#include <vector>

namespace simulator {

struct ViewState {
    ViewGeometry geometry;
    UIView* superview = nil;                 // not retained: it retains this view
    std::vector<Retained<UIView*>> subviews; // from the back to the front
    UIViewController* controller = nil;      // not retained: it retains this view
    Retained<CALayer*> layer;
    Retained<UIColor*> backgroundColor;
    Retained<UIColor*> tintColor;
    Retained<NSString*> accessibilityIdentifier;
    Retained<NSString*> accessibilityLabel;
    std::vector<Retained<UIGestureRecognizer*>> recognizers;
    NSInteger tag = 0;
    CGFloat alpha = 1;
    int animationsWithoutTouches = 0; // that are under way
    UIViewAutoresizing autoresizingMask = UIViewAutoresizingNone;
    UIViewContentMode contentMode = UIViewContentModeScaleToFill;
    bool autoresizesSubviews = true;
    bool hidden = false;
    bool opaque = true;
    bool takesTouches = true;
    bool needsLayout = true;
};

} // namespace simulator

@interface UIView (State)

- (simulator::ViewState&)viewState;
// Lays out the receiver and everything below it until nothing asks for layout any more.
- (void)layoutTree;

@end
