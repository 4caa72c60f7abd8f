// Which views an animation moves: unless its options allow it, they take no touches while it lasts.
#pragma once

#import "UIKit/internal/Ownership.h"

#include <vector>

@class UIView;

namespace simulator {

// While it lives, changes of views belong to one animation. May be nested; the innermost counts. Main thread.
class AnimationScope {
  public:
    explicit AnimationScope(bool allowsTouches);
    ~AnimationScope();
    AnimationScope(const AnimationScope&) = delete;
    AnimationScope& operator=(const AnimationScope&) = delete;

    // The views that take no touches until endAnimation().
    const std::vector<Retained<UIView*>>& untouchableViews() const { return m_untouchableViews; }

  private:
    friend void noteChange(UIView* view);

    bool m_allowsTouches;
    AnimationScope* m_outer;
    std::vector<Retained<UIView*>> m_untouchableViews;
};

// The geometry or opacity of a view changes.
void noteChange(UIView* view);
void endAnimation(const std::vector<Retained<UIView*>>& untouchableViews);

} // namespace simulator
