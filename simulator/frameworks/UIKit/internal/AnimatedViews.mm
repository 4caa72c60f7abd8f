#import "UIKit/internal/AnimatedViews.h"

#import "UIKit/internal/ViewState.h"

#include <utility>

namespace simulator {

namespace {

AnimationScope* innermost = nullptr; // main thread only

} // namespace

AnimationScope::AnimationScope(bool allowsTouches)
    : m_allowsTouches(allowsTouches), m_outer(std::exchange(innermost, this)) {}

AnimationScope::~AnimationScope() { innermost = m_outer; }

void noteChange(UIView* view) {
    if (!innermost || innermost->m_allowsTouches) return;
    innermost->m_untouchableViews.emplace_back(view);
    ++[view viewState].animationsWithoutTouches;
}

void endAnimation(const std::vector<Retained<UIView*>>& untouchableViews) {
    for (const auto& view : untouchableViews)
        --[view.get() viewState].animationsWithoutTouches;
}

} // namespace simulator
