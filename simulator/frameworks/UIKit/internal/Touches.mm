#import "UIKit/internal/RecognizerState.h"

#import "UIKit/UIKit.h"
#import "UIKit/internal/Casts.h"
#import "UIKit/internal/Ownership.h"

#include <algorithm>

namespace simulator {

namespace {

template <typename View> View* enclosing(UIView* view) {
    while (view != nil && as<View>(view) == nil)
        view = [view superview];
    return static_cast<View*>(view);
}

// Single taps on a control are the control's: recognisers of views above it do not get them.
bool belongsToControlBelow(UIGestureRecognizer* recognizer, const Touch& touch) {
    if (touch.taps != 1) return false;
    UIControl* control = enclosing<UIControl>(touch.hitView);
    return control != nil && [recognizer view] != control && ![[recognizer view] isDescendantOfView:control];
}

// The recogniser whose gesture this is, from the view that was hit upwards; it shuts others out.
UIGestureRecognizer* recognizerOf(const Touch& touch) {
    UIGestureRecognizer* first = nil;
    for (UIView* view = touch.hitView; view != nil; view = [view superview])
        for (UIGestureRecognizer* each in [view gestureRecognizers])
            if ([each recognizes:touch] && !belongsToControlBelow(each, touch) &&
                (first == nil || [each rank] < [first rank]))
                first = each;
    return first;
}

void tapControl(UIControl* control, NSUInteger taps) {
    UISwitch* switches = as<UISwitch>(control);
    for (NSUInteger tap = 0; tap < std::max<NSUInteger>(taps, 1); ++tap) {
        [switches setOn:![switches isOn]];
        [control sendActionsForControlEvents:switches != nil ? UIControlEventValueChanged
                                                             : UIControlEventTouchUpInside];
    }
}

// What a view does with a touch of its own accord.
bool handles(UIView* view, const Touch& touch) {
    if (UIControl* control = as<UIControl>(view))
        tapControl(control, touch.taps);
    else if (UITableViewCell* row = as<UITableViewCell>(view))
        [enclosing<UITableView>(view) tapCell:row];
    else if (UICollectionViewCell* cell = as<UICollectionViewCell>(view))
        [enclosing<UICollectionView>(view) tapCell:cell];
    else
        return false;
    return true;
}

} // namespace

void deliver(const Touch& touch) {
    const Retained<UIView*> alive(touch.hitView);
    const Retained<UIGestureRecognizer*> recognizer(recognizerOf(touch));
    if (recognizer) {
        [recognizer.get() noteLocation:touch.location];
        return [recognizer.get() perform:touch];
    }
    if (touch.gesture != Gesture::tapOrPress) return;
    for (UIView* view = touch.hitView; view != nil; view = [view superview])
        if (handles(view, touch)) return;
}

} // namespace simulator
