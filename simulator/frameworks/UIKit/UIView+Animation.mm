#import "UIKit/UIView.h"

#import "UIKit/internal/AnimatedViews.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/Ownership.h"
#include "device/clock.h"

@implementation UIView (Animation)

+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
    simulator::mainThreadOnly(self, _cmd);
    if (!animations) [NSException raise:NSInvalidArgumentException format:@"animations must not be nil"];
    std::vector<simulator::Retained<UIView*>> untouchableViews;
    {
        const simulator::AnimationScope scope((options & UIViewAnimationOptionAllowUserInteraction) != 0);
        animations();
        untouchableViews = scope.untouchableViews();
    }
    if (!completion && untouchableViews.empty()) return;
    const simulator::OwnedBlock<void (^)(BOOL)> finish(completion);
    simulator::clock().after(duration + delay, [finish, untouchableViews] {
        simulator::endAnimation(untouchableViews);
        finish(YES);
    });
}

+ (void)animateWithDuration:(NSTimeInterval)duration
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
    [self animateWithDuration:duration delay:0 options:0 animations:animations completion:completion];
}

+ (void)animateWithDuration:(NSTimeInterval)duration animations:(void (^)(void))animations {
    [self animateWithDuration:duration delay:0 options:0 animations:animations completion:nil];
}

@end
