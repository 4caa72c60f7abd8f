#import "UIKit/UIGestureRecognizer.h"

#import "ObjectiveC/ObjectiveC.h"
#import "UIKit/UIView.h"
#import "UIKit/internal/ActionTargets.h"
#import "UIKit/internal/RecognizerState.h"

#include "device/releases.h"

#include <cstdio>
#include <cstdlib>

using simulator::Gesture;
using simulator::Touch;

@implementation UIGestureRecognizer

@synthesize state = _state, view = _view, delegate = _delegate;

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (instancetype)initWithTarget:(id)target action:(SEL)action {
    self = [super init];
    objc_initWeak(&_target, target);
    _hasTarget = target != nil;
    _action = action;
    return self;
}

- (void)dealloc {
    objc_destroyWeak(&_target);
    [super dealloc];
}

// nil for a target that has gone.
- (id)_livingTarget {
    id target = [objc_loadWeakRetained(&_target) autorelease];
    if (target == nil && _hasTarget && simulator::currentRelease() < simulator::Release::ios9_3) {
        std::fprintf(stderr, "*** -[%s]: message sent to a deallocated target\n", sel_getName(_action));
        std::abort();
    }
    return target;
}

- (BOOL)recognizes:(const Touch&)touch {
    return NO;
}

- (double)rank {
    return 0;
}

- (void)perform:(const Touch&)touch {
}

- (CGPoint)locationInView:(UIView*)view {
    return [view convertPoint:_location fromView:nil];
}

- (void)noteLocation:(CGPoint)location {
    _location = location;
}

- (void)goThrough:(std::initializer_list<UIGestureRecognizerState>)states {
    for (const UIGestureRecognizerState state : states) {
        _state = state;
        simulator::sendAction([self _livingTarget], _action, self);
    }
    _state = UIGestureRecognizerStatePossible;
}

@end

@implementation UITapGestureRecognizer

@synthesize numberOfTapsRequired = _numberOfTapsRequired;

- (instancetype)initWithTarget:(id)target action:(SEL)action {
    self = [super initWithTarget:target action:action];
    _numberOfTapsRequired = 1;
    return self;
}

- (BOOL)recognizes:(const Touch&)touch {
    return touch.taps > 0 && touch.taps >= _numberOfTapsRequired;
}

- (double)rank {
    return -static_cast<double>(_numberOfTapsRequired);
}

- (void)perform:(const Touch&)touch {
    for (NSUInteger gestures = touch.taps / _numberOfTapsRequired; gestures > 0; --gestures)
        [self goThrough:{UIGestureRecognizerStateEnded}];
}

@end

@implementation UILongPressGestureRecognizer

@synthesize minimumPressDuration = _minimumPressDuration;

- (instancetype)initWithTarget:(id)target action:(SEL)action {
    self = [super initWithTarget:target action:action];
    _minimumPressDuration = 0.5;
    return self;
}

- (BOOL)recognizes:(const Touch&)touch {
    return touch.gesture == Gesture::tapOrPress && touch.taps == 0 && touch.seconds >= _minimumPressDuration;
}

- (double)rank {
    return _minimumPressDuration;
}

- (void)perform:(const Touch&)touch {
    [self goThrough:{UIGestureRecognizerStateBegan, UIGestureRecognizerStateEnded}];
}

@end

@implementation UIPinchGestureRecognizer

- (BOOL)recognizes:(const Touch&)touch {
    return touch.gesture == Gesture::pinch;
}

- (void)perform:(const Touch&)touch {
    [self goThrough:{UIGestureRecognizerStateBegan, UIGestureRecognizerStateChanged,
                     UIGestureRecognizerStateEnded}];
}

@end
