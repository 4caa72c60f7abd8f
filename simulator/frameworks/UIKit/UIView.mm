#import "UIKit/UIView.h"

#import "UIKit/UIColor.h"
#import "UIKit/UIGestureRecognizer.h"
#import "UIKit/UIViewController.h"
#import "UIKit/UIWindow.h"
#import "UIKit/internal/AnimatedViews.h"
#import "UIKit/internal/LayoutQueue.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/RecognizerState.h"
#import "UIKit/internal/ViewState.h"

#include <algorithm>

using simulator::mainThreadOnly;
using simulator::Retained;
using simulator::ViewState;

namespace {

// Views of less opacity take no touches.
constexpr CGFloat leastTouchableAlpha = 0.01;
// Layout that asks for layout again and again would freeze a phone.
constexpr int mostLayoutRounds = 64;

auto positionOf(ViewState& parent, UIView* child) {
    return std::ranges::find_if(parent.subviews, [child](const auto& each) { return each.get() == child; });
}

} // namespace

@implementation UIView

- (instancetype)init {
    return [self initWithFrame:CGRectZero];
}

- (instancetype)initWithFrame:(CGRect)frame {
    mainThreadOnly(self, _cmd);
    self = [super init];
    if (!self) return nil;
    _viewState = new ViewState;
    _viewState->geometry.setFrame(frame);
    return self;
}

- (void)dealloc {
    if (_viewState) {
        [_viewState->layer.get() setDelegate:nil];
        for (const auto& subview : _viewState->subviews)
            [subview.get() viewState].superview = nil;
        for (const auto& recognizer : _viewState->recognizers)
            simulator::setView(recognizer.get(), nil);
    }
    delete _viewState;
    [super dealloc];
}

- (ViewState&)viewState {
    return *_viewState;
}

- (UIResponder*)nextResponder {
    return _viewState->controller ? static_cast<UIResponder*>(_viewState->controller) : _viewState->superview;
}

#pragma mark Geometry

- (CGRect)frame {
    mainThreadOnly(self, _cmd);
    return _viewState->geometry.frame();
}

- (void)setFrame:(CGRect)frame {
    mainThreadOnly(self, _cmd);
    simulator::noteChange(self);
    const CGSize before = _viewState->geometry.bounds().size;
    _viewState->geometry.setFrame(frame);
    [self sizeChangedFrom:before];
}

- (CGRect)bounds {
    mainThreadOnly(self, _cmd);
    return _viewState->geometry.bounds();
}

- (void)setBounds:(CGRect)bounds {
    mainThreadOnly(self, _cmd);
    simulator::noteChange(self);
    const CGSize before = _viewState->geometry.bounds().size;
    _viewState->geometry.setBounds(bounds);
    [self sizeChangedFrom:before];
}

- (CGPoint)center {
    mainThreadOnly(self, _cmd);
    return _viewState->geometry.center();
}

- (void)setCenter:(CGPoint)center {
    mainThreadOnly(self, _cmd);
    simulator::noteChange(self);
    _viewState->geometry.setCenter(center);
}

- (void)sizeChangedFrom:(CGSize)before {
    const CGSize after = _viewState->geometry.bounds().size;
    if (CGSizeEqualToSize(before, after)) return;
    [self setNeedsLayout];
    if (!_viewState->autoresizesSubviews) return;
    for (UIView* subview in [self subviews]) {
        const UIViewAutoresizing mask = [subview autoresizingMask];
        if (mask != UIViewAutoresizingNone)
            [subview setFrame:simulator::autoresizedFrame([subview frame], mask, before, after)];
    }
}

- (CGPoint)pointInRoot:(CGPoint)point {
    for (UIView* view = self; view; view = [view superview])
        point = [view viewState].geometry.toSuperview(point);
    return point;
}

- (CGPoint)pointFromRoot:(CGPoint)point {
    UIView* superview = _viewState->superview;
    return _viewState->geometry.fromSuperview(superview ? [superview pointFromRoot:point] : point);
}

- (CGPoint)convertPoint:(CGPoint)point toView:(UIView*)view {
    mainThreadOnly(self, _cmd);
    UIView* target = view ? view : [self window];
    const CGPoint inRoot = [self pointInRoot:point];
    return target ? [target pointFromRoot:inRoot] : inRoot;
}

- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView*)view {
    mainThreadOnly(self, _cmd);
    UIView* source = view ? view : [self window];
    return [self pointFromRoot:source ? [source pointInRoot:point] : point];
}

- (CGRect)convertRect:(CGRect)rect toView:(UIView*)view {
    return {[self convertPoint:rect.origin toView:view], rect.size};
}

- (CGRect)convertRect:(CGRect)rect fromView:(UIView*)view {
    return {[self convertPoint:rect.origin fromView:view], rect.size};
}

#pragma mark Tree

- (NSInteger)tag {
    mainThreadOnly(self, _cmd);
    return _viewState->tag;
}

- (void)setTag:(NSInteger)tag {
    mainThreadOnly(self, _cmd);
    _viewState->tag = tag;
}

- (UIView*)viewWithTag:(NSInteger)tag {
    mainThreadOnly(self, _cmd);
    if (_viewState->tag == tag) return self;
    for (const auto& subview : _viewState->subviews)
        if (UIView* found = [subview.get() viewWithTag:tag]) return found;
    return nil;
}

- (UIView*)superview {
    mainThreadOnly(self, _cmd);
    return _viewState->superview;
}

- (NSArray*)subviews {
    mainThreadOnly(self, _cmd);
    NSMutableArray* subviews = [NSMutableArray arrayWithCapacity:_viewState->subviews.size()];
    for (const auto& subview : _viewState->subviews)
        [subviews addObject:subview.get()];
    return subviews;
}

- (UIWindow*)window {
    mainThreadOnly(self, _cmd);
    UIView* root = self;
    while ([root viewState].superview)
        root = [root viewState].superview;
    return [root isKindOfClass:[UIWindow class]] ? static_cast<UIWindow*>(root) : nil;
}

- (void)addSubview:(UIView*)view {
    [self insertSubview:view atIndex:NSIntegerMax];
}

- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index {
    mainThreadOnly(self, _cmd);
    if (!view) return;
    if (view == self || [self isDescendantOfView:view])
        [NSException raise:NSInvalidArgumentException
                    format:@"Can't add %@ as a subview of what it contains", view];

    const Retained<UIView*> alive(view);
    auto& siblings = _viewState->subviews;
    if ([view viewState].superview == self) {
        siblings.erase(positionOf(*_viewState, view));
        siblings.insert(siblings.begin() + std::min<std::ptrdiff_t>(index, std::ssize(siblings)), alive);
        return;
    }
    [view removeFromSuperview];
    UIWindow* window = [self window];
    [view willMoveToSuperview:self];
    if (window) [view willMoveTreeToWindow:window];
    siblings.insert(siblings.begin() + std::clamp<std::ptrdiff_t>(index, 0, std::ssize(siblings)), alive);
    [view viewState].superview = self;
    [view didMoveToSuperview];
    if (window) [view didMoveTreeToWindow];
    [self didAddSubview:view];
    [self setNeedsLayout];
}

- (void)insertSubview:(UIView*)view belowSubview:(UIView*)sibling {
    [self insertSubview:view besides:sibling offset:0];
}

- (void)insertSubview:(UIView*)view aboveSubview:(UIView*)sibling {
    [self insertSubview:view besides:sibling offset:1];
}

- (void)insertSubview:(UIView*)view besides:(UIView*)sibling offset:(NSInteger)offset {
    mainThreadOnly(self, _cmd);
    if (view == sibling) return;
    const Retained<UIView*> alive(view);
    if ([view viewState].superview == self) [view removeFromSuperview];
    const auto position = positionOf(*_viewState, sibling);
    const bool found = position != _viewState->subviews.end();
    [self insertSubview:view atIndex:found ? position - _viewState->subviews.begin() + offset : NSIntegerMax];
}

- (void)bringSubviewToFront:(UIView*)view {
    mainThreadOnly(self, _cmd);
    const auto position = positionOf(*_viewState, view);
    if (position != _viewState->subviews.end())
        std::rotate(position, position + 1, _viewState->subviews.end());
}

- (void)sendSubviewToBack:(UIView*)view {
    mainThreadOnly(self, _cmd);
    const auto position = positionOf(*_viewState, view);
    if (position != _viewState->subviews.end())
        std::rotate(_viewState->subviews.begin(), position, position + 1);
}

- (void)removeFromSuperview {
    mainThreadOnly(self, _cmd);
    UIView* superview = _viewState->superview;
    if (!superview) return;
    const Retained<UIView*> alive(self);
    UIWindow* window = [self window];
    [superview willRemoveSubview:self];
    [self willMoveToSuperview:nil];
    if (window) [self willMoveTreeToWindow:nil];
    auto& siblings = [superview viewState].subviews;
    siblings.erase(positionOf([superview viewState], self));
    _viewState->superview = nil;
    [self didMoveToSuperview];
    if (window) [self didMoveTreeToWindow];
    [superview setNeedsLayout];
}

- (void)willMoveTreeToWindow:(UIWindow*)window {
    [self willMoveToWindow:window];
    for (UIView* subview in [self subviews])
        [subview willMoveTreeToWindow:window];
}

- (void)didMoveTreeToWindow {
    [self didMoveToWindow];
    for (UIView* subview in [self subviews])
        [subview didMoveTreeToWindow];
}

- (BOOL)isDescendantOfView:(UIView*)view {
    mainThreadOnly(self, _cmd);
    UIView* ancestor = self;
    while (ancestor && ancestor != view)
        ancestor = [ancestor viewState].superview;
    return ancestor ? YES : NO;
}

- (void)didAddSubview:(UIView*)subview {
}

- (void)willRemoveSubview:(UIView*)subview {
}

- (void)willMoveToSuperview:(UIView*)superview {
}

- (void)didMoveToSuperview {
}

- (void)willMoveToWindow:(UIWindow*)window {
}

- (void)didMoveToWindow {
}

#pragma mark Appearance

- (CALayer*)layer {
    mainThreadOnly(self, _cmd);
    if (!_viewState->layer) {
        _viewState->layer = [CALayer layer];
        [_viewState->layer.get() setDelegate:self];
    }
    return _viewState->layer.get();
}

- (BOOL)isHidden {
    mainThreadOnly(self, _cmd);
    return _viewState->hidden ? YES : NO;
}

- (void)setHidden:(BOOL)hidden {
    mainThreadOnly(self, _cmd);
    _viewState->hidden = hidden;
}

- (CGFloat)alpha {
    mainThreadOnly(self, _cmd);
    return _viewState->alpha;
}

- (void)setAlpha:(CGFloat)alpha {
    mainThreadOnly(self, _cmd);
    simulator::noteChange(self);
    _viewState->alpha = alpha;
}

- (BOOL)isOpaque {
    mainThreadOnly(self, _cmd);
    return _viewState->opaque ? YES : NO;
}

- (void)setOpaque:(BOOL)opaque {
    mainThreadOnly(self, _cmd);
    _viewState->opaque = opaque;
}

- (BOOL)clipsToBounds {
    return [[self layer] masksToBounds];
}

- (void)setClipsToBounds:(BOOL)clipsToBounds {
    [[self layer] setMasksToBounds:clipsToBounds];
}

- (UIColor*)backgroundColor {
    mainThreadOnly(self, _cmd);
    return _viewState->backgroundColor.autoreleased();
}

- (void)setBackgroundColor:(UIColor*)color {
    mainThreadOnly(self, _cmd);
    _viewState->backgroundColor = color;
}

- (UIColor*)tintColor {
    mainThreadOnly(self, _cmd);
    if (_viewState->tintColor) return _viewState->tintColor.autoreleased();
    return _viewState->superview ? [_viewState->superview tintColor] : [UIColor blueColor];
}

- (void)setTintColor:(UIColor*)color {
    mainThreadOnly(self, _cmd);
    _viewState->tintColor = color;
}

- (UIViewContentMode)contentMode {
    mainThreadOnly(self, _cmd);
    return _viewState->contentMode;
}

- (void)setContentMode:(UIViewContentMode)mode {
    mainThreadOnly(self, _cmd);
    _viewState->contentMode = mode;
}

- (BOOL)isUserInteractionEnabled {
    mainThreadOnly(self, _cmd);
    return _viewState->takesTouches ? YES : NO;
}

- (void)setUserInteractionEnabled:(BOOL)enabled {
    mainThreadOnly(self, _cmd);
    _viewState->takesTouches = enabled;
}

- (NSString*)accessibilityIdentifier {
    return _viewState->accessibilityIdentifier.autoreleased();
}

- (void)setAccessibilityIdentifier:(NSString*)identifier {
    mainThreadOnly(self, _cmd);
    _viewState->accessibilityIdentifier = Retained<NSString*>::copyOf(identifier);
}

- (NSString*)accessibilityLabel {
    return _viewState->accessibilityLabel.autoreleased();
}

- (void)setAccessibilityLabel:(NSString*)label {
    mainThreadOnly(self, _cmd);
    _viewState->accessibilityLabel = Retained<NSString*>::copyOf(label);
}

#pragma mark Layout

- (UIViewAutoresizing)autoresizingMask {
    mainThreadOnly(self, _cmd);
    return _viewState->autoresizingMask;
}

- (void)setAutoresizingMask:(UIViewAutoresizing)mask {
    mainThreadOnly(self, _cmd);
    _viewState->autoresizingMask = mask;
}

- (BOOL)autoresizesSubviews {
    mainThreadOnly(self, _cmd);
    return _viewState->autoresizesSubviews ? YES : NO;
}

- (void)setAutoresizesSubviews:(BOOL)autoresizes {
    mainThreadOnly(self, _cmd);
    _viewState->autoresizesSubviews = autoresizes;
}

- (void)setNeedsLayout {
    mainThreadOnly(self, _cmd);
    _viewState->needsLayout = true;
    simulator::scheduleLayout();
}

- (void)setNeedsDisplay {
    mainThreadOnly(self, _cmd);
}

- (void)layoutIfNeeded {
    mainThreadOnly(self, _cmd);
    [self layoutTree];
}

- (void)layoutSubviews {
    mainThreadOnly(self, _cmd);
}

- (void)layoutTree {
    for (int round = 0;[self layoutOnce]; ++round)
        if (round == mostLayoutRounds)
            [NSException raise:NSInternalInconsistencyException
                        format:@"the layout of %@ does not settle", self];
}

// Whether anything needed layout.
- (BOOL)layoutOnce {
    const Retained<UIView*> alive(self);
    BOOL didLayOut = NO;
    if (_viewState->needsLayout) {
        didLayOut = YES;
        _viewState->needsLayout = false;
        const Retained<UIViewController*> controller(_viewState->controller);
        [controller.get() viewWillLayoutSubviews];
        [self layoutSubviews];
        [controller.get() viewDidLayoutSubviews];
    }
    for (UIView* subview in [self subviews])
        if ([subview layoutOnce]) didLayOut = YES;
    return didLayOut;
}

- (CGSize)sizeThatFits:(CGSize)size {
    return [self bounds].size;
}

- (void)sizeToFit {
    const CGRect bounds = [self bounds];
    const CGPoint origin = [self frame].origin;
    const CGSize size = [self sizeThatFits:bounds.size];
    [self setFrame:CGRectMake(origin.x, origin.y, size.width, size.height)];
}

#pragma mark Touches

- (NSArray*)gestureRecognizers {
    mainThreadOnly(self, _cmd);
    if (_viewState->recognizers.empty()) return nil;
    NSMutableArray* recognizers = [NSMutableArray array];
    for (const auto& recognizer : _viewState->recognizers)
        [recognizers addObject:recognizer.get()];
    return recognizers;
}

- (void)addGestureRecognizer:(UIGestureRecognizer*)recognizer {
    mainThreadOnly(self, _cmd);
    if (!recognizer || [recognizer view] == self) return;
    const Retained<UIGestureRecognizer*> alive(recognizer);
    [[recognizer view] removeGestureRecognizer:recognizer];
    _viewState->recognizers.push_back(alive);
    simulator::setView(recognizer, self);
}

- (void)removeGestureRecognizer:(UIGestureRecognizer*)recognizer {
    mainThreadOnly(self, _cmd);
    const Retained<UIGestureRecognizer*> alive(recognizer);
    const auto isIt = [recognizer](const auto& each) { return each.get() == recognizer; };
    if (std::erase_if(_viewState->recognizers, isIt) > 0) simulator::setView(recognizer, nil);
}

- (UIView*)hitTest:(CGPoint)point withEvent:(id)event {
    mainThreadOnly(self, _cmd);
    if ([self isHidden] || [self alpha] < leastTouchableAlpha || ![self isUserInteractionEnabled]) return nil;
    if (_viewState->animationsWithoutTouches > 0 || ![self pointInside:point withEvent:event]) return nil;
    for (UIView* subview in [[self subviews] reverseObjectEnumerator]) {
        const CGPoint inside = [subview viewState].geometry.fromSuperview(point);
        if (UIView* hit = [subview hitTest:inside withEvent:event]) return hit;
    }
    return self;
}

- (BOOL)pointInside:(CGPoint)point withEvent:(id)event {
    mainThreadOnly(self, _cmd);
    return CGRectContainsPoint(_viewState->geometry.bounds(), point) ? YES : NO;
}

- (UIViewController*)_viewControllerForAncestor {
    mainThreadOnly(self, _cmd);
    UIView* view = self;
    while (view && ![view viewState].controller)
        view = [view viewState].superview;
    return view ? [view viewState].controller : nil;
}

@end
