#import "UIKit/UIGestureRecognizer.h"

#import "ObjectiveC/MainThreadOnly.h"
#import "UIKit/UIView.h"
#import "UIKit/internal/MainThread.h"
#import "UIKit/internal/RecognizerState.h"

using simulator::ActionTarget;
using simulator::mainThreadOnly;
using simulator::RecognizerState;
using simulator::Touch;

@implementation UIGestureRecognizer

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (instancetype)init {
    return [self initWithTarget:nil action:nullptr];
}

- (instancetype)initWithTarget:(id)target action:(SEL)action {
    mainThreadOnly(self, _cmd);
    self = [super init];
    if (!self) return nil;
    _recognizerState = new RecognizerState;
    [self addTarget:target action:action];
    return self;
}

- (void)dealloc {
    delete _recognizerState;
    [super dealloc];
}

- (RecognizerState&)recognizerState {
    return *_recognizerState;
}

- (void)addTarget:(id)target action:(SEL)action {
    mainThreadOnly(self, _cmd);
    if (target && action) _recognizerState->targets.push_back({target, action});
}

- (void)removeTarget:(id)target action:(SEL)action {
    mainThreadOnly(self, _cmd);
    std::erase_if(_recognizerState->targets,
                  [=](const ActionTarget& each) { return each.matches(target, action); });
}

- (UIGestureRecognizerState)state {
    mainThreadOnly(self, _cmd);
    return _recognizerState->state;
}

- (UIView*)view {
    mainThreadOnly(self, _cmd);
    return _recognizerState->view;
}

- (id)delegate {
    mainThreadOnly(self, _cmd);
    return _recognizerState->delegate.get();
}

- (void)setDelegate:(id)delegate {
    mainThreadOnly(self, _cmd);
    _recognizerState->delegate = delegate;
}

- (BOOL)isEnabled {
    mainThreadOnly(self, _cmd);
    return _recognizerState->enabled ? YES : NO;
}

- (void)setEnabled:(BOOL)enabled {
    mainThreadOnly(self, _cmd);
    _recognizerState->enabled = enabled;
}

- (BOOL)cancelsTouchesInView {
    mainThreadOnly(self, _cmd);
    return _recognizerState->cancelsTouches ? YES : NO;
}

- (void)setCancelsTouchesInView:(BOOL)cancels {
    mainThreadOnly(self, _cmd);
    _recognizerState->cancelsTouches = cancels;
}

- (CGPoint)locationInView:(UIView*)view {
    mainThreadOnly(self, _cmd);
    const CGPoint point = _recognizerState->pointInWindow;
    return view ? [view convertPoint:point fromView:nil] : point;
}

- (BOOL)recognizes:(const Touch&)touch {
    return NO;
}

- (void)perform:(const Touch&)touch {
}

- (void)enterState:(UIGestureRecognizerState)state {
    const simulator::Retained<UIGestureRecognizer*> alive(self);
    _recognizerState->state = state;
    const std::vector<ActionTarget> targets = _recognizerState->targets; // an action may change them
    for (const ActionTarget& each : targets)
        simulator::sendAction(each.target.get(), each.action, self);
}

- (BOOL)mayBegin {
    id delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(gestureRecognizer:shouldReceiveTouch:)] &&
        ![delegate gestureRecognizer:self shouldReceiveTouch:nil])
        return NO;
    if ([delegate respondsToSelector:@selector(gestureRecognizerShouldBegin:)])
        return [delegate gestureRecognizerShouldBegin:self];
    return YES;
}

- (BOOL)mayRecognizeBeside:(UIGestureRecognizer*)other {
    id delegate = [self delegate];
    SEL question = @selector(gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:);
    if (![delegate respondsToSelector:question]) return NO;
    return [delegate gestureRecognizer:self shouldRecognizeSimultaneouslyWithGestureRecognizer:other];
}

@end

namespace simulator {

void setView(UIGestureRecognizer* recognizer, UIView* view) { [recognizer recognizerState].view = view; }

} // namespace simulator

@implementation UITapGestureRecognizer

@synthesize numberOfTapsRequired = _numberOfTapsRequired;
@synthesize numberOfTouchesRequired = _numberOfTouchesRequired;

- (instancetype)initWithTarget:(id)target action:(SEL)action {
    self = [super initWithTarget:target action:action];
    _numberOfTapsRequired = 1;
    _numberOfTouchesRequired = 1;
    return self;
}

- (BOOL)recognizes:(const Touch&)touch {
    return touch.taps > 0 && touch.taps >= _numberOfTapsRequired && _numberOfTouchesRequired == 1 ? YES : NO;
}

- (void)perform:(const Touch&)touch {
    const simulator::Retained<UIGestureRecognizer*> alive(self);
    [self recognizerState].pointInWindow = touch.pointInWindow;
    for (NSUInteger gestures = touch.taps / _numberOfTapsRequired; gestures > 0; --gestures) {
        [self enterState:UIGestureRecognizerStateEnded];
        [self recognizerState].state = UIGestureRecognizerStatePossible;
    }
}

@end

@implementation UILongPressGestureRecognizer

@synthesize minimumPressDuration = _minimumPressDuration;
@synthesize allowableMovement = _allowableMovement;

- (instancetype)initWithTarget:(id)target action:(SEL)action {
    self = [super initWithTarget:target action:action];
    _minimumPressDuration = 0.5;
    _allowableMovement = 10;
    return self;
}

- (BOOL)recognizes:(const Touch&)touch {
    return touch.taps == 0 && touch.seconds >= _minimumPressDuration ? YES : NO;
}

- (void)perform:(const Touch&)touch {
    const simulator::Retained<UIGestureRecognizer*> alive(self);
    [self recognizerState].pointInWindow = touch.pointInWindow;
    [self enterState:UIGestureRecognizerStateBegan];
    [self enterState:UIGestureRecognizerStateEnded];
    [self recognizerState].state = UIGestureRecognizerStatePossible;
}

@end
