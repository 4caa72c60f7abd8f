#import "UIKit/UIGestureRecognizer.h"

#import "UIKit/internal/ActionTargets.h"
#import "UIKit/internal/RecognizerState.h"

using simulator::Touch;

@implementation UIGestureRecognizer

@synthesize state = _state, view = _view, delegate = _delegate;

+ (BOOL)isMainThreadOnly {
    return YES;
}

- (instancetype)initWithTarget:(id)target action:(SEL)action {
    self = [super init];
    _target = target;
    _action = action;
    return self;
}

- (BOOL)recognizes:(const Touch&)touch {
    return NO;
}

- (double)rank {
    return 0;
}

- (void)perform:(const Touch&)touch {
}

- (void)goThrough:(std::initializer_list<UIGestureRecognizerState>)states {
    for (const UIGestureRecognizerState state : states) {
        _state = state;
        simulator::sendAction(_target, _action, self);
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
    return touch.taps == 0 && touch.seconds >= _minimumPressDuration;
}

- (double)rank {
    return _minimumPressDuration;
}

- (void)perform:(const Touch&)touch {
    [self goThrough:{UIGestureRecognizerStateBegan, UIGestureRecognizerStateEnded}];
}

@end
