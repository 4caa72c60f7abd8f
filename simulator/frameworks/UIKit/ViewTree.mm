#import "UIKit/ViewTree.h"

#import "UIKit/UIKit.h"
#import "UIKit/internal/ActionTargets.h"
#import "UIKit/internal/Casts.h"
#import "UIKit/internal/Containers.h"
#import "UIKit/internal/RecognizerState.h"
#import "UIKit/internal/ViewInternals.h"
#include "device/strings.h"

#include <algorithm>
#include <ranges>
#include <stdexcept>
#include <utility>

namespace simulator {

namespace {

CGPoint middleOf(CGRect rect) { return {CGRectGetMidX(rect), CGRectGetMidY(rect)}; }

std::vector<TouchedScreen> touchedScreens;
bool keepsTouchedScreens = false;

void noteTouchAt(CGPoint point) {
    if (keepsTouchedScreens) touchedScreens.push_back({screenshotAsSvg(), point});
}

UIView* viewAt(CGPoint point) {
    return [[[[[UIApplication sharedApplication] keyWindow] hitTest:point withEvent:nil] retain] autorelease];
}

UIView* touchAt(CGPoint point, Touch touch) {
    layoutWindows();
    touch.location = point;
    noteTouchAt(point);
    touch.hitView = viewAt(point);
    if (touch.hitView == nil) return nil;
    deliver(touch);
    layoutWindows();
    return touch.hitView;
}

UIView* touchAtMiddle(UIView* view, Touch touch) {
    if ([view window] == nil) throw std::invalid_argument("the view to touch is not in a window");
    layoutWindows();
    return touchAt([view convertPoint:middleOf([view bounds]) toView:nil], touch);
}

// What is drawn there without being a view.
const Spot* drawnSpotAt(CGPoint point, const Picture& picture) {
    UIView* hit = viewAt(point);
    for (const Spot& spot : picture.spots | std::views::reverse)
        if (spot.act && spot.view == hit && CGRectContainsPoint(spot.rect, point)) return &spot;
    return nullptr;
}

// From the view outwards, the first that has more to show in that direction.
UIScrollView* scrollViewAt(UIView* view, CGSize distance) {
    for (; view != nil; view = [view superview]) {
        UIScrollView* scrolls = as<UIScrollView>(view);
        const CGSize content = [scrolls contentSize], size = [scrolls bounds].size;
        if ((distance.height != 0 && content.height > size.height) ||
            (distance.width != 0 && content.width > size.width))
            return scrolls;
    }
    return nil;
}

// All buttons in the bars that can be seen.
NSArray* barButtonItems() {
    NSMutableArray* items = [NSMutableArray array];
    for (UIViewController* shown = frontController(); shown != nil; shown = [shown shownChild]) {
        UINavigationController* navigation = as<UINavigationController>(shown);
        UINavigationItem* item = [[navigation topViewController] navigationItem];
        NSArray* tools = [navigation isToolbarHidden] ? nil : [[navigation toolbar] items];
        for (NSArray* bar : {[item leftBarButtonItems], [item rightBarButtonItems], tools})
            if (bar != nil) [items addObjectsFromArray:bar];
    }
    return items;
}

} // namespace

std::vector<TouchedScreen> takeTouchedScreens() {
    keepsTouchedScreens = true;
    return std::exchange(touchedScreens, {});
}

void noteTouch(UIView* view) {
    if (keepsTouchedScreens && [view window] != nil)
        noteTouchAt([view convertPoint:middleOf([view bounds]) toView:nil]);
}

void noteTouch(std::string_view label) {
    if (!keepsTouchedScreens) return;
    for (const Spot& spot : screenPicture().spots | std::views::reverse)
        if (spot.label == label) return noteTouchAt(middleOf(spot.rect));
}

UIViewController* frontController() {
    UIViewController* controller = [[[UIApplication sharedApplication] keyWindow] rootViewController];
    while (UIViewController* presented = [controller presentedViewController])
        controller = presented;
    return controller;
}

UIAlertController* frontAlert() { return as<UIAlertController>(frontController()); }

UIView* tap(UIView* view, unsigned taps) { return touchAtMiddle(view, Touch{.taps = taps}); }

UIView* longPress(UIView* view, double seconds) { return touchAtMiddle(view, Touch{.seconds = seconds}); }

UIView* pinch(UIView* view) { return touchAtMiddle(view, Touch{.gesture = Gesture::pinch}); }

UIView* hardPress(UIView* view) { return touchAtMiddle(view, Touch{.gesture = Gesture::hardPress}); }

void tapAt(CGPoint point, unsigned taps) {
    if (const Picture picture = screenPicture(); const Spot* drawn = drawnSpotAt(point, picture)) {
        noteTouchAt(point);
        drawn->act();
        return layoutWindows();
    }
    touchAt(point, Touch{.taps = taps});
}

void longPressAt(CGPoint point, double seconds) { touchAt(point, Touch{.seconds = seconds}); }

void pinchAt(CGPoint point) { touchAt(point, Touch{.gesture = Gesture::pinch}); }

void hardPressAt(CGPoint point) { touchAt(point, Touch{.gesture = Gesture::hardPress}); }

void scrollAt(CGPoint point, CGSize distance) {
    layoutWindows();
    UIScrollView* scrolls = scrollViewAt(viewAt(point), distance);
    const CGPoint offset = [scrolls contentOffset];
    const CGSize most = {[scrolls contentSize].width - [scrolls bounds].size.width,
                         [scrolls contentSize].height - [scrolls bounds].size.height};
    const auto within = [](CGFloat value, CGFloat last) {
        return std::clamp<CGFloat>(value, 0, std::max<CGFloat>(last, 0));
    };
    [scrolls setContentOffset:{within(offset.x + distance.width, most.width),
                               within(offset.y + distance.height, most.height)}];
    layoutWindows();
}

void followScreen() {
    const CGRect bounds = [[UIScreen mainScreen] bounds];
    UIWindow* window = [[UIApplication sharedApplication] keyWindow];
    if (CGRectEqualToRect([window frame], bounds)) return;
    [[window rootViewController] viewWillTransitionToSize:bounds.size withTransitionCoordinator:nil];
    [window setFrame:bounds];
    for (UIView* view in [window subviews])
        [view setFrame:bounds];
    layoutWindows();
}

std::vector<Spot> reachableSpots(const Picture& picture) {
    std::vector<Spot> reachable;
    for (const Spot& spot : picture.spots) {
        UIView* hit = viewAt(middleOf(spot.rect));
        if (spot.act ? hit == spot.view : [hit isDescendantOfView:spot.view]) reachable.push_back(spot);
    }
    return reachable;
}

void tapBarButton(std::string_view title) {
    for (UIBarButtonItem* item in barButtonItems()) {
        if (text([item title]) != title) continue;
        const Retained<UIBarButtonItem*> alive(item);
        noteTouch(title);
        sendAction([item target], [item action], item);
        return layoutWindows();
    }
    throw std::invalid_argument("no bar button has the title " + std::string(title));
}

void typeText(std::size_t fieldIndex, std::string_view text) {
    NSArray* fields = [frontAlert() textFields];
    if (fieldIndex >= [fields count])
        throw std::invalid_argument("there is no text field " + std::to_string(fieldIndex));
    [[fields objectAtIndex:fieldIndex] setText:string(std::string(text))];
}

void tapAlertAction(std::string_view title) {
    UIAlertController* alert = frontAlert();
    for (UIAlertAction* action in [alert actions]) {
        if (text([action title]) != title || ![action isEnabled]) continue;
        noteTouch(title);
        [alert tapAction:action];
        return layoutWindows();
    }
    throw std::invalid_argument("no alert offers the action " + std::string(title));
}

} // namespace simulator
