#import "UIKit/UIViewController.h"

#import "UIKit/UIDevice.h"
#import "UIKit/UIPopoverPresentationController.h"
#import "UIKit/UIWindow.h"
#import "UIKit/internal/Containers.h"
#import "UIKit/internal/Ownership.h"
#include "device/clock.h"

using simulator::OwnedBlock;
using simulator::Retained;

namespace {

constexpr double transitionDuration = 0.4; // seconds, when it is animated

} // namespace

@implementation UIViewController (Presentation)

// Presentations belong to the outermost container, whichever controller inside it asked.
- (UIViewController*)presenter {
    UIViewController* outermost = self;
    while (outermost->_parentViewController != nil)
        outermost = outermost->_parentViewController;
    return outermost;
}

- (UIViewController*)presentedViewController {
    return [self presenter]->_presented;
}

- (UIViewController*)presentingViewController {
    return [self presenter]->_presenting;
}

- (UIPopoverPresentationController*)popoverPresentationController {
    if ([self modalPresentationStyle] != UIModalPresentationPopover) return nil;
    if (_popover == nil) _popover = [[UIPopoverPresentationController alloc] init];
    return _popover;
}

- (BOOL)isShownAsPopover {
    return [self modalPresentationStyle] == UIModalPresentationPopover && simulator::isPad();
}

// What a presentation takes away, as against putting something on top of it.
- (UIViewController*)coveredBy:(UIViewController*)presented {
    const bool covers = [presented modalPresentationStyle] == UIModalPresentationFullScreen;
    return covers ? [[[self view] window] rootViewController] : nil;
}

// Starts a transition of what this controller presents. `end` runs when the time has come, unless the
// transition was cut short before.
- (void)beginTransition:(BOOL)animated end:(void (^)(void))end {
    _endOfTransition = Block_copy(end);
    const unsigned number = ++_transitionNumber;
    if (!animated) return [self finishTransition];
    const Retained<UIViewController*> alive(self);
    simulator::clock().after(transitionDuration, [alive, number] {
        if (alive.get()->_transitionNumber == number) [alive.get() finishTransition];
    });
}

- (void)finishTransition {
    const Retained<UIViewController*> alive(self);
    const OwnedBlock<void (^)(void)> end(_endOfTransition);
    Block_release(_endOfTransition);
    _endOfTransition = nullptr;
    ++_transitionNumber;
    end();
}

- (void)presentViewController:(UIViewController*)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion {
    if (controller == nil || controller == self || controller->_presenting != nil)
        [NSException raise:NSInvalidArgumentException
                    format:@"Application tried to present modally an active controller %@.", controller];
    UIViewController* presenter = [self presenter];
    UIWindow* window = [[self view] window];
    if (presenter->_presented != nil || window == nil)
        return NSLog(@"Warning: Attempt to present %@ on %@, which presents already or is on no window!",
                     controller, self);
    UIPopoverPresentationController* popover = [controller popoverPresentationController];
    if ([controller isShownAsPopover] && [popover sourceView] == nil && [popover barButtonItem] == nil)
        [NSException raise:NSGenericException
                    format:@"UIPopoverPresentationController (%@) should have a non-nil sourceView or "
                           @"barButtonItem set before the presentation occurs.",
                           popover];

    presenter->_presented = [controller retain];
    controller->_presenting = presenter;
    UIViewController* covered = [presenter coveredBy:controller];
    [covered willChangeAppearance:NO animated:animated];
    [controller willChangeAppearance:YES animated:animated];
    [[controller view] setFrame:[window bounds]];
    [window addSubview:[controller view]];
    [[controller view] layoutIfNeeded];
    const Retained<UIViewController*> below(covered), above(controller);
    const OwnedBlock<void (^)(void)> done(completion);
    [presenter beginTransition:animated
                           end:^{
                               [below.get() didChangeAppearance:NO animated:animated];
                               [above.get() didChangeAppearance:YES animated:animated];
                               done();
                           }];
}

- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion {
    UIViewController* own = [self presenter];
    UIViewController* presenter = own->_presented != nil ? own : own->_presenting;
    if (presenter == nil) {
        if (completion) completion();
        return;
    }
    const Retained<UIViewController*> alive(presenter);
    if (presenter->_endOfTransition) [presenter finishTransition];
    const Retained<UIViewController*> above(presenter->_presented);
    if (!above) return;
    // What lies on top goes with it.
    if (above.get()->_presented != nil) [above.get() dismissViewControllerAnimated:NO completion:nil];
    const Retained<UIViewController*> below([presenter coveredBy:above.get()]);
    [above.get() willChangeAppearance:NO animated:animated];
    [below.get() willChangeAppearance:YES animated:animated];
    const OwnedBlock<void (^)(void)> done(completion);
    [presenter beginTransition:animated
                           end:^{
                               [presenter->_presented release];
                               presenter->_presented = nil;
                               above.get()->_presenting = nil;
                               [[above.get() viewIfLoaded] removeFromSuperview];
                               [above.get() didChangeAppearance:NO animated:animated];
                               [below.get() didChangeAppearance:YES animated:animated];
                               done();
                           }];
}

@end
