#import "UIKit/UIView.h"

#import "ObjectiveC/MainThreadOnly.h"
#import "UIKit/UIApplication.h"
#import "UIKit/UIColor.h"
#import "UIKit/UIGestureRecognizer.h"
#import "UIKit/UIViewController.h"
#import "UIKit/UIWindow.h"
#import "UIKit/internal/Ownership.h"
#import "UIKit/internal/RecognizerState.h"
#import "UIKit/internal/ViewInternals.h"

#include "device/threads.h"

#include <cmath>
#include <utility>

using simulator::Retained;

namespace {

// Views of less opacity take no touches.
constexpr CGFloat leastTouchableAlpha = 0.01;
// Layout that asks for layout again and again would freeze a phone.
constexpr int mostLayoutRounds = 64;

bool layoutIsScheduled = false; // main thread only

} // namespace

void simulator::layoutWindows() {
    layoutIsScheduled = false;
    [[[UIApplication sharedApplication] keyWindow] layoutIfNeeded];
}

@implementation UIResponder

+ (BOOL)isMainThreadOnly {
    return YES;
}

@end

@implementation UIView

@synthesize bounds = _bounds, center = _center, tag = _tag, superview = _superview, hidden = _hidden,
            alpha = _alpha, opaque = _opaque, backgroundColor = _backgroundColor, tintColor = _tintColor,
            contentMode = _contentMode, accessibilityLabel = _accessibilityLabel,
            userInteractionEnabled = _userInteractionEnabled, autoresizingMask = _autoresizingMask,
            autoresizesSubviews = _autoresizesSubviews, gestureRecognizers = _gestureRecognizers,
            viewController = _viewController, animationsWithoutTouches = _animationsWithoutTouches;

- (instancetype)init {
    return [self initWithFrame:CGRectZero];
}

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super init];
    if (self == nil) return nil;
    _subviews = [[NSMutableArray alloc] init];
    _alpha = 1;
    _autoresizesSubviews = _opaque = _userInteractionEnabled = _needsLayout = YES;
    _bounds.size = {std::abs(frame.size.width), std::abs(frame.size.height)};
    _center = {CGRectGetMidX(frame), CGRectGetMidY(frame)};
    return self;
}

- (void)dealloc {
    for (UIView* subview in _subviews)
        subview->_superview = nil;
    for (UIGestureRecognizer* recognizer in _gestureRecognizers)
        [recognizer setView:nil];
    [_subviews release];
    [_layer release];
    [_backgroundColor release];
    [_tintColor release];
    [_accessibilityLabel release];
    [_gestureRecognizers release];
    [super dealloc];
}

#pragma mark Geometry

- (CGRect)frame {
    const CGSize size = _bounds.size;
    return {{_center.x - size.width / 2, _center.y - size.height / 2}, size};
}

// A negative size becomes the same rectangle with a positive size.
- (void)setFrame:(CGRect)frame {
    [self setCenter:CGPointMake(CGRectGetMidX(frame), CGRectGetMidY(frame))];
    [self setBounds:{_bounds.origin, {std::abs(frame.size.width), std::abs(frame.size.height)}}];
}

- (void)setCenter:(CGPoint)center {
    simulator::noteChange(self);
    _center = center;
}

- (void)setBounds:(CGRect)bounds {
    simulator::noteChange(self);
    const CGSize before = _bounds.size;
    _bounds = bounds;
    if (CGSizeEqualToSize(before, bounds.size)) return;
    [self setNeedsLayout];
    if (!_autoresizesSubviews) return;
    for (UIView* subview in [self subviews])
        if (const UIViewAutoresizing mask = [subview autoresizingMask])
            [subview setFrame:simulator::autoresizedFrame([subview frame], mask, before, bounds.size)];
}

- (CGPoint)pointInRoot:(CGPoint)point {
    for (UIView* view = self; view != nil; view = view->_superview) {
        const CGRect frame = [view frame];
        point.x += frame.origin.x - view->_bounds.origin.x;
        point.y += frame.origin.y - view->_bounds.origin.y;
    }
    return point;
}

- (CGPoint)convertPoint:(CGPoint)point toView:(UIView*)view {
    const CGPoint inRoot = [self pointInRoot:point];
    UIView* target = view != nil ? view : [self window];
    const CGPoint origin = target != nil ? [target pointInRoot:CGPointZero] : CGPointZero;
    return {inRoot.x - origin.x, inRoot.y - origin.y};
}

- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView*)view {
    const CGPoint origin = [self convertPoint:CGPointZero toView:view];
    return {point.x - origin.x, point.y - origin.y};
}

#pragma mark Tree

- (UIView*)viewWithTag:(NSInteger)tag {
    if (_tag == tag) return self;
    for (UIView* subview in _subviews)
        if (UIView* found = [subview viewWithTag:tag]) return found;
    return nil;
}

- (NSArray*)subviews {
    return [[_subviews copy] autorelease];
}

- (UIWindow*)window {
    UIView* root = self;
    while (root->_superview != nil)
        root = root->_superview;
    return [root isKindOfClass:[UIWindow class]] ? static_cast<UIWindow*>(root) : nil;
}

- (void)addSubview:(UIView*)view {
    [self insertSubview:view atIndex:NSIntegerMax];
}

- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index {
    if (view == nil) return;
    if ([self isDescendantOfView:view])
        [NSException raise:NSInvalidArgumentException
                    format:@"Can't add %@ as a subview of what it contains", view];
    const Retained<UIView*> alive(view);
    const bool isNew = view->_superview != self;
    if (isNew)
        [view removeFromSuperview];
    else
        [_subviews removeObjectIdenticalTo:view];
    [_subviews insertObject:view atIndex:MIN(static_cast<NSUInteger>(index), [_subviews count])];
    view->_superview = self;
    if (isNew) [self setNeedsLayout];
}

- (void)bringSubviewToFront:(UIView*)view {
    if (view != nil && view->_superview == self) [self addSubview:view];
}

- (void)removeFromSuperview {
    if (_superview == nil) return;
    UIView* superview = _superview;
    _superview = nil;
    [superview setNeedsLayout];
    [superview->_subviews removeObjectIdenticalTo:self]; // may be the last reference
}

- (BOOL)isDescendantOfView:(UIView*)view {
    UIView* ancestor = self;
    while (ancestor != nil && ancestor != view)
        ancestor = ancestor->_superview;
    return ancestor != nil ? YES : NO;
}

#pragma mark Appearance

- (CALayer*)layer {
    if (_layer == nil) _layer = [[CALayer alloc] init];
    return _layer;
}

- (void)setAlpha:(CGFloat)alpha {
    simulator::noteChange(self);
    _alpha = alpha;
}

- (BOOL)clipsToBounds {
    return [_layer masksToBounds];
}

- (void)setClipsToBounds:(BOOL)clipsToBounds {
    [[self layer] setMasksToBounds:clipsToBounds];
}

#pragma mark Layout

- (void)setNeedsLayout {
    _needsLayout = YES;
    if (!std::exchange(layoutIsScheduled, true)) simulator::performOnMainThread(simulator::layoutWindows);
}

- (void)layoutSubviews {
}

- (void)layoutIfNeeded {
    for (int round = 0;[self layoutOnce]; ++round)
        if (round == mostLayoutRounds)
            [NSException raise:NSInternalInconsistencyException
                        format:@"the layout of %@ does not settle", self];
}

// Whether anything needed layout.
- (BOOL)layoutOnce {
    const Retained<UIView*> alive(self);
    BOOL didLayOut = _needsLayout;
    if (_needsLayout) {
        _needsLayout = NO;
        const Retained<UIViewController*> controller(_viewController);
        [controller.get() viewWillLayoutSubviews];
        [self layoutSubviews];
        [controller.get() viewDidLayoutSubviews];
    }
    for (UIView* subview in [self subviews])
        if ([subview layoutOnce]) didLayOut = YES;
    return didLayOut;
}

#pragma mark Touches

- (void)addGestureRecognizer:(UIGestureRecognizer*)recognizer {
    if (recognizer == nil || [recognizer view] == self) return;
    if (_gestureRecognizers == nil) _gestureRecognizers = [[NSMutableArray alloc] init];
    [_gestureRecognizers addObject:recognizer];
    if ([recognizer view] != nil) [[recognizer view]->_gestureRecognizers removeObjectIdenticalTo:recognizer];
    [recognizer setView:self];
}

- (UIView*)hitTest:(CGPoint)point withEvent:(id)event {
    if (_hidden || _alpha < leastTouchableAlpha || !_userInteractionEnabled) return nil;
    if (_animationsWithoutTouches > 0 || !CGRectContainsPoint(_bounds, point)) return nil;
    for (UIView* subview in [[self subviews] reverseObjectEnumerator])
        if (UIView* hit = [subview hitTest:[self convertPoint:point toView:subview] withEvent:event])
            return hit;
    return self;
}

- (UIViewController*)_viewControllerForAncestor {
    UIView* view = self;
    while (view != nil && view->_viewController == nil)
        view = view->_superview;
    return [view viewController];
}

@end
