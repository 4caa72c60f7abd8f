#import "UIKit/UIViewController.h"

#import "UIKit/UIDevice.h"
#import "UIKit/UIPopoverPresentationController.h"
#import "UIKit/UIWindow.h"
#import "UIKit/internal/ControllerState.h"
#import "UIKit/internal/MainThread.h"
#include "device/clock.h"

using simulator::ControllerState;
using simulator::mainThreadOnly;
using simulator::Retained;
using simulator::Transition;

namespace {

// Presentations belong to the outermost container, whichever controller inside it asked.
UIViewController* presenterFor(UIViewController* controller) {
    while (UIViewController* parent = [controller parentViewController])
        controller = parent;
    return controller;
}

// Starts a transition of what a controller presents; `finish` is sent to it when the time has come, unless
// the transition was cut short before.
void beginTransition(UIViewController* presenter, Transition kind, bool animated, void (^completion)(void)) {
    ControllerState& state = [presenter controllerState];
    state.transition = kind;
    state.afterTransition = completion;
    const unsigned number = ++state.transitionNumber;
    if (!animated) return [presenter finishTransition];
    const Retained<UIViewController*> alive(presenter);
    simulator::clock().after(simulator::transitionDuration, [alive, number] {
        if ([alive.get() controllerState].transitionNumber == number) [alive.get() finishTransition];
    });
}

} // namespace

@implementation UIViewController (Presentation)

- (UIModalPresentationStyle)modalPresentationStyle {
    mainThreadOnly(self, _cmd);
    return [self controllerState].presentationStyle;
}

- (void)setModalPresentationStyle:(UIModalPresentationStyle)style {
    mainThreadOnly(self, _cmd);
    [self controllerState].presentationStyle = style;
}

- (UIViewController*)presentedViewController {
    mainThreadOnly(self, _cmd);
    return [presenterFor(self) controllerState].presented.get();
}

- (UIViewController*)presentingViewController {
    mainThreadOnly(self, _cmd);
    return [presenterFor(self) controllerState].presenting;
}

- (UIPopoverPresentationController*)popoverPresentationController {
    mainThreadOnly(self, _cmd);
    if ([self modalPresentationStyle] != UIModalPresentationPopover) return nil;
    ControllerState& state = [self controllerState];
    if (!state.popover)
        state.popover = Retained<UIPopoverPresentationController*>::adopted(
            [[UIPopoverPresentationController alloc] initWithPresentedViewController:self]);
    return state.popover.get();
}

- (BOOL)coversPresenter {
    const UIModalPresentationStyle style = [self modalPresentationStyle];
    const bool isPad = [[UIDevice currentDevice] userInterfaceIdiom] == UIUserInterfaceIdiomPad;
    if (style == UIModalPresentationFullScreen || style == UIModalPresentationCurrentContext) return YES;
    const bool isCompact = style == UIModalPresentationPageSheet || style == UIModalPresentationFormSheet ||
                           style == UIModalPresentationPopover;
    return isCompact && !isPad ? YES : NO; // a phone shows these as full screens
}

// Popovers exist on pads only; elsewhere the presentation adapts.
- (BOOL)isShownAsPopover {
    return [self modalPresentationStyle] == UIModalPresentationPopover &&
                   [[UIDevice currentDevice] userInterfaceIdiom] == UIUserInterfaceIdiomPad
               ? YES
               : NO;
}

- (void)requireAnchor {
    if (![self isShownAsPopover]) return;
    UIPopoverPresentationController* popover = [self popoverPresentationController];
    if ([popover sourceView] || [popover barButtonItem]) return;
    [NSException
         raise:NSGenericException
        format:@"UIPopoverPresentationController (%@) should have a non-nil sourceView or barButtonItem set "
               @"before the presentation occurs.",
               popover];
}

// Why a presentation is refused; nil when it is not.
- (NSString*)reasonNotToPresent:(UIViewController*)controller {
    if ([self presentedViewController])
        return [presenterFor(self) controllerState].transition == Transition::dismissing
                   ? @"while a dismissal is in progress"
                   : @"which is already presenting";
    if (![[self view] window]) return @"whose view is not in the window hierarchy";
    return nil;
}

- (void)presentViewController:(UIViewController*)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion {
    mainThreadOnly(self, _cmd);
    if (!controller || controller == self)
        [NSException raise:NSInvalidArgumentException format:@"%@ cannot present %@", self, controller];
    if ([controller presentingViewController])
        [NSException raise:NSInvalidArgumentException
                    format:@"Application tried to present modally an active controller %@.", controller];
    if (NSString* reason = [self reasonNotToPresent:controller])
        return NSLog(@"Warning: Attempt to present %@ on %@ %@!", controller, self, reason);
    [controller requireAnchor];

    UIViewController* presenter = presenterFor(self);
    [presenter controllerState].presented = controller;
    [controller controllerState].presenting = presenter;
    UIWindow* window = [[self view] window];
    UIViewController* covered = [controller coversPresenter] ? [window rootViewController] : nil;
    simulator::willDisappear(covered, animated);
    simulator::willAppear(controller, animated);
    [[controller view] setFrame:[window bounds]];
    [window addSubview:[controller view]];
    [[controller view] layoutIfNeeded];
    beginTransition(presenter, Transition::presenting, animated, completion);
}

- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion {
    mainThreadOnly(self, _cmd);
    UIViewController* presenter = self;
    while (presenter && ![presenter controllerState].presented)
        presenter = [presenter parentViewController];
    if (!presenter) presenter = [self presentingViewController];
    if (!presenter) {
        if (completion) completion();
        return;
    }
    const Retained<UIViewController*> alive(presenter);
    if ([presenter controllerState].transition != Transition::none) [presenter finishTransition];
    const Retained<UIViewController*> presented = [presenter controllerState].presented;
    if (!presented) return;
    // What lies on top goes with it.
    if ([presented.get() controllerState].presented)
        [presented.get() dismissViewControllerAnimated:NO completion:nil];
    simulator::willDisappear(presented.get(), animated);
    if ([presented.get() coversPresenter])
        simulator::willAppear([[[presenter view] window] rootViewController], animated);
    beginTransition(presenter, Transition::dismissing, animated, completion);
}

- (void)finishTransition {
    const Retained<UIViewController*> alive(self);
    ControllerState& state = [self controllerState];
    const Transition kind = std::exchange(state.transition, Transition::none);
    const auto completion = std::exchange(state.afterTransition, {});
    const Retained<UIViewController*> presented = state.presented;
    ++state.transitionNumber;
    UIViewController* root = [[[self view] window] rootViewController];
    UIViewController* covered = [presented.get() coversPresenter] ? root : nil;
    if (kind == Transition::presenting) {
        simulator::didDisappear(covered, true);
        simulator::didAppear(presented.get(), true);
    } else {
        state.presented = {};
        [presented.get() controllerState].presenting = nil;
        [[presented.get() viewIfLoaded] removeFromSuperview];
        simulator::didDisappear(presented.get(), true);
        simulator::didAppear(covered, true);
    }
    completion();
}

@end
