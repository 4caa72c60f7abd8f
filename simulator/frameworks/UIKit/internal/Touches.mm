#import "UIKit/internal/Touches.h"

#import "UIKit/UIKit.h"
#import "UIKit/internal/Selection.h"

#include <algorithm>
#include <vector>

namespace simulator {

namespace {

using Recognizers = std::vector<Retained<UIGestureRecognizer*>>;

template <typename View> View* enclosing(UIView* view) {
    while (view && ![view isKindOfClass:[View class]])
        view = [view superview];
    return static_cast<View*>(view);
}

// Single taps on a control are the control's: recognisers of views above it do not get them.
bool belongsToControlBelow(UIGestureRecognizer* recognizer, const Touch& touch) {
    if (touch.taps != 1) return false;
    UIControl* control = enclosing<UIControl>(touch.hitView);
    return control && [control isEnabled] && [recognizer view] != control &&
           ![[recognizer view] isDescendantOfView:control];
}

// The recognisers whose gesture this is, from the view that was hit upwards.
Recognizers candidatesFor(const Touch& touch) {
    Recognizers candidates;
    for (UIView* view = touch.hitView; view; view = [view superview])
        for (UIGestureRecognizer* each in [view gestureRecognizers])
            if ([each isEnabled] && [each recognizes:touch] && !belongsToControlBelow(each, touch) &&
                [each mayBegin])
                candidates.emplace_back(each);
    return candidates;
}

// Which of two recognisers sees its gesture first: more taps are waited for, a shorter press is over sooner.
bool comesBefore(UIGestureRecognizer* a, UIGestureRecognizer* b) {
    Class tapClass = [UITapGestureRecognizer class];
    Class pressClass = [UILongPressGestureRecognizer class];
    if ([a isKindOfClass:tapClass] && [b isKindOfClass:tapClass])
        return [static_cast<UITapGestureRecognizer*>(a) numberOfTapsRequired] >
               [static_cast<UITapGestureRecognizer*>(b) numberOfTapsRequired];
    if ([a isKindOfClass:pressClass] && [b isKindOfClass:pressClass])
        return [static_cast<UILongPressGestureRecognizer*>(a) minimumPressDuration] <
               [static_cast<UILongPressGestureRecognizer*>(b) minimumPressDuration];
    return false;
}

// The first one recognises and shuts the others out, unless a delegate allows both. Whether the touch is used
// up.
bool recognize(const Touch& touch) {
    Recognizers candidates = candidatesFor(touch);
    if (candidates.empty()) return false;
    const Retained<UIGestureRecognizer*> first = *std::ranges::min_element(
        candidates, [](const auto& a, const auto& b) { return comesBefore(a.get(), b.get()); });
    const bool usedUp = [first.get() cancelsTouchesInView];
    std::erase_if(candidates, [&first](const auto& each) {
        const bool isFirst = each.get() == first.get();
        return !isFirst && ![each.get() mayRecognizeBeside:first.get()] &&
               ![first.get() mayRecognizeBeside:each.get()];
    });
    for (const auto& each : candidates)
        [each.get() perform:touch];
    return usedUp;
}

void tapTextField(UIView* view, const Touch&) { [view becomeFirstResponder]; }

void tapSwitch(UIView* view, const Touch&) {
    auto* control = static_cast<UISwitch*>(view);
    if (![control isEnabled]) return;
    [control setOn:[control isOn] ? NO : YES animated:YES];
    [control sendActionsForControlEvents:UIControlEventValueChanged];
}

void tapControl(UIView* view, const Touch& touch) {
    auto* control = static_cast<UIControl*>(view);
    if (![control isEnabled]) return;
    for (NSUInteger tap = 0; tap < std::max<NSUInteger>(touch.taps, 1); ++tap) {
        [control sendActionsForControlEvents:UIControlEventTouchDown];
        [control sendActionsForControlEvents:UIControlEventTouchUpInside];
    }
}

void tapTableCell(UIView* view, const Touch&) {
    [enclosing<UITableView>(view) tapCell:static_cast<UITableViewCell*>(view)];
}

void tapCollectionCell(UIView* view, const Touch&) {
    [enclosing<UICollectionView>(view) tapCell:static_cast<UICollectionViewCell*>(view)];
}

void tapTabBar(UIView* view, const Touch& touch) {
    auto* bar = static_cast<UITabBar*>(view);
    UIViewController* controller = [bar _viewControllerForAncestor];
    const auto count = static_cast<CGFloat>([[bar items] count]);
    if (count == 0 || ![controller isKindOfClass:[UITabBarController class]]) return;
    const CGFloat x = [bar convertPoint:touch.pointInWindow fromView:nil].x;
    const auto index = static_cast<NSUInteger>(x / [bar bounds].size.width * count);
    [static_cast<UITabBarController*>(controller) setSelectedIndex:index];
}

struct TouchHandler {
    Class viewClass;
    void (*handle)(UIView* view, const Touch& touch);
};

// What views do with a touch of their own accord; the first that fits counts.
const std::vector<TouchHandler>& touchHandlers() {
    static const std::vector<TouchHandler> handlers = {
        {[UITextField class], tapTextField},
        {[UISwitch class], tapSwitch},
        {[UIControl class], tapControl},
        {[UITableViewCell class], tapTableCell},
        {[UICollectionViewCell class], tapCollectionCell},
        {[UITabBar class], tapTabBar},
    };
    return handlers;
}

const TouchHandler* handlerFor(UIView* view) {
    const auto found = std::ranges::find_if(touchHandlers(), [view](const TouchHandler& each) {
        return [view isKindOfClass:each.viewClass] != NO;
    });
    return found == touchHandlers().end() ? nullptr : &*found;
}

} // namespace

void deliver(const Touch& touch) {
    const Retained<UIView*> alive(touch.hitView);
    if (recognize(touch)) return;
    for (UIView* view = touch.hitView; view; view = [view superview])
        if (const TouchHandler* handler = handlerFor(view)) return handler->handle(view, touch);
}

} // namespace simulator
