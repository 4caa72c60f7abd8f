#import "UIKit/UIView.h"

#import "UIKit/internal/Ownership.h"
#import "UIKit/internal/ViewInternals.h"
#include "device/clock.h"

#include <vector>

namespace simulator {

namespace {

using Views = std::vector<Retained<UIView*>>;

// Where the innermost animation collects the views that it changes; null where it allows touches, and
// outside of animations. Main thread only.
Views* changedViews = nullptr;

// The views that the animations change.
Views viewsChangedBy(void (^animations)(void), bool allowsTouches) {
    Views views;
    Views* const outer = std::exchange(changedViews, allowsTouches ? nullptr : &views);
    animations();
    changedViews = outer;
    return views;
}

void changeAnimationsOf(const Views& views, NSInteger change) {
    for (const auto& view : views)
        [view.get() setAnimationsWithoutTouches:[view.get() animationsWithoutTouches] + change];
}

} // namespace

void noteChange(UIView* view) {
    if (changedViews != nullptr) changedViews->emplace_back(view);
}

} // namespace simulator

@implementation UIView (Animation)

+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
    if (animations == nil)
        [NSException raise:NSInvalidArgumentException format:@"animations must not be nil"];
    const auto views =
        simulator::viewsChangedBy(animations, options & UIViewAnimationOptionAllowUserInteraction);
    simulator::changeAnimationsOf(views, 1);
    const simulator::OwnedBlock<void (^)(BOOL)> finish(completion);
    simulator::clock().after(duration + delay, [finish, views] {
        simulator::changeAnimationsOf(views, -1);
        finish(YES);
    });
}

@end
