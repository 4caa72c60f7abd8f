#import "UIKit/internal/Orientation.h"

#import "UIKit/UIApplication.h"
#import "UIKit/UIScreen.h"
#import "UIKit/UIViewController.h"
#import "UIKit/UIWindow.h"
#import "UIKit/ViewTree.h"
#import "UIKit/internal/ControllerState.h"
#include "device/clock.h"
#include "device/releases.h"

#include <vector>

// Lets controllers take part in a rotation.
@interface RotationCoordinator : NSObject <UIViewControllerTransitionCoordinator> {
    std::vector<simulator::OwnedBlock<void (^)(id)>>* _animations;
    std::vector<simulator::OwnedBlock<void (^)(id)>>* _completions;
}

- (void)runAnimations;
- (void)runCompletions;

@end

@implementation RotationCoordinator

- (instancetype)init {
    self = [super init];
    _animations = new std::vector<simulator::OwnedBlock<void (^)(id)>>;
    _completions = new std::vector<simulator::OwnedBlock<void (^)(id)>>;
    return self;
}

- (void)dealloc {
    delete _animations;
    delete _completions;
    [super dealloc];
}

- (BOOL)animateAlongsideTransition:(void (^)(id context))animation
                        completion:(void (^)(id context))completion {
    _animations->emplace_back(animation);
    _completions->emplace_back(completion);
    return YES;
}

- (void)runAnimations {
    for (const auto& animation : *_animations)
        animation(static_cast<id>(self));
}

- (void)runCompletions {
    for (const auto& completion : *_completions)
        completion(static_cast<id>(self));
}

@end

namespace simulator {

namespace {

bool heldSideways = false; // main thread only

// Since iOS 8 controllers hear of the new size before it comes.
void announceSize(UIWindow* window, CGSize size, RotationCoordinator* coordinator) {
    if (currentRelease() < Release::ios8_4) return;
    UIViewController* controller = [window rootViewController];
    while (controller) {
        [controller viewWillTransitionToSize:size withTransitionCoordinator:coordinator];
        controller = [controller controllerState].presented.get();
    }
}

} // namespace

bool isLandscape() { return heldSideways; }

void setLandscape(bool landscape) {
    if (heldSideways == landscape) return;
    heldSideways = landscape;
    const auto coordinator = Retained<RotationCoordinator*>::adopted([[RotationCoordinator alloc] init]);
    const CGRect bounds = [[UIScreen mainScreen] bounds];
    for (UIWindow* window in [[UIApplication sharedApplication] windows]) {
        announceSize(window, bounds.size, coordinator.get());
        [window setFrame:bounds];
    }
    [coordinator.get() runAnimations];
    for (UIWindow* window in [[UIApplication sharedApplication] windows])
        [window layoutIfNeeded];
    clock().after(transitionDuration, [coordinator] { [coordinator.get() runCompletions]; });
}

} // namespace simulator
