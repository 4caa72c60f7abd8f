// Recognisers of taps, long presses and pinches on a view, with the states a gesture goes through.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@class UIView;

typedef NS_ENUM(NSInteger, UIGestureRecognizerState) {
    UIGestureRecognizerStatePossible = 0,
    UIGestureRecognizerStateBegan = 1,
    UIGestureRecognizerStateChanged = 2,
    UIGestureRecognizerStateEnded = 3,
    UIGestureRecognizerStateCancelled = 4,
    UIGestureRecognizerStateFailed = 5,
};

@interface UIGestureRecognizer : NSObject {
  @private
    id _target; // weak
    BOOL _hasTarget;
    SEL _action;
    UIGestureRecognizerState _state;
    UIView* _view; // not retained: it retains the recogniser
    id _delegate;
    CGPoint _location; // in the window
}

// The target is not retained. Up to iOS 8 it must outlive the recogniser: a gesture for one that has gone
// ends the process. The action may take the recogniser or nothing.
- (instancetype)initWithTarget:(id)target action:(SEL)action;

// Possible again as soon as a gesture is over.
@property (nonatomic, readonly) UIGestureRecognizerState state;
@property (nonatomic, readonly, assign) UIView* view;
@property (nonatomic, assign) id delegate;
// Of the gesture under way or, afterwards, of the last one.
- (CGPoint)locationInView:(UIView*)view;

@end

@interface UITapGestureRecognizer : UIGestureRecognizer {
  @private
    NSUInteger _numberOfTapsRequired;
}

@property (nonatomic) NSUInteger numberOfTapsRequired;

@end

@interface UILongPressGestureRecognizer : UIGestureRecognizer {
  @private
    NSTimeInterval _minimumPressDuration;
}

// In seconds; half a second unless set.
@property (nonatomic) NSTimeInterval minimumPressDuration;

@end

@interface UIPinchGestureRecognizer : UIGestureRecognizer
@end
