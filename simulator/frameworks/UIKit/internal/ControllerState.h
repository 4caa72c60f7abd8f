// What a controller keeps behind its methods, and how it comes on the screen and goes.
#pragma once

#import "UIKit/UIViewController.h"
#import "UIKit/internal/Ownership.h"

#include <vector>

@class UIPopoverPresentationController;

namespace simulator {

enum class Transition { none, presenting, dismissing };

struct ControllerState {
    Retained<UIView*> view;
    Retained<NSString*> title;
    Retained<UINavigationItem*> navigationItem;
    Retained<UITabBarItem*> tabBarItem;
    Retained<NSArray*> toolbarItems;
    Retained<UIBarButtonItem*> editButton;
    std::vector<Retained<UIViewController*>> children;
    UIViewController* parent = nil; // not retained: it retains this controller
    Retained<UIViewController*> presented;
    UIViewController* presenting = nil; // not retained: it retains this controller
    Retained<UIPopoverPresentationController*> popover;
    OwnedBlock<void (^)(void)> afterTransition; // completion of the transition that is under way
    Transition transition = Transition::none;   // of what this controller presents
    unsigned transitionNumber = 0;
    UIModalPresentationStyle presentationStyle = UIModalPresentationFullScreen;
    CGSize preferredContentSize = {};
    bool editing = false;
    bool appeared = false;
};

// The transition of an animated presentation or dismissal lasts so many seconds.
constexpr double transitionDuration = 0.4;

// Tell a controller, and those children of it that are shown, that it comes on the screen or leaves it.
// Nothing happens to a controller that is there, or gone, already.
void willAppear(UIViewController* controller, bool animated);
void didAppear(UIViewController* controller, bool animated);
void willDisappear(UIViewController* controller, bool animated);
void didDisappear(UIViewController* controller, bool animated);

// Replaces what a container shows: takes the old child's view away, puts the new one's into `frame` of the
// container's view, telling both when the container itself is on the screen. Either may be nil.
void exchangeChildren(UIViewController* container, UIViewController* old, UIViewController* replacement,
                      CGRect frame, bool animated);

} // namespace simulator

@interface UIViewController (State)

- (simulator::ControllerState&)controllerState;
// The children that a container shows at the moment; those whose views are in its view unless overridden.
- (NSArray*)shownChildren;
// Ends the transition that is under way: what it is about has come or gone.
- (void)finishTransition;
// Raises where this controller would be shown as a popover that has nothing to point at.
- (void)requireAnchor;
- (BOOL)isShownAsPopover;
// Whether presentation takes this controller's screenful away, as against something on top of it.
- (BOOL)coversPresenter;

@end
