// Recognisers of taps and long presses on a view, with the states a gesture goes through.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@class UIView;

namespace simulator {
struct RecognizerState;
}

typedef NS_ENUM(NSInteger, UIGestureRecognizerState) {
    UIGestureRecognizerStatePossible = 0,
    UIGestureRecognizerStateBegan = 1,
    UIGestureRecognizerStateChanged = 2,
    UIGestureRecognizerStateEnded = 3,
    UIGestureRecognizerStateRecognized = 3,
    UIGestureRecognizerStateCancelled = 4,
    UIGestureRecognizerStateFailed = 5,
};

@interface UIGestureRecognizer : NSObject {
  @private
    simulator::RecognizerState* _recognizerState;
}

// The target is not retained; the action may take the recogniser or nothing.
- (instancetype)initWithTarget:(id)target action:(SEL)action;
- (void)addTarget:(id)target action:(SEL)action;
- (void)removeTarget:(id)target action:(SEL)action;

// Possible again as soon as a gesture is over.
@property (nonatomic, readonly) UIGestureRecognizerState state;
@property (nonatomic, readonly, assign) UIView* view;
// Not retained; nil once it is gone.
@property (nonatomic, assign) id delegate;
@property (nonatomic, getter=isEnabled) BOOL enabled;
@property (nonatomic) BOOL cancelsTouchesInView;
- (CGPoint)locationInView:(UIView*)view;

@end

@interface UITapGestureRecognizer : UIGestureRecognizer {
  @private
    NSUInteger _numberOfTapsRequired;
    NSUInteger _numberOfTouchesRequired;
}

@property (nonatomic) NSUInteger numberOfTapsRequired;
@property (nonatomic) NSUInteger numberOfTouchesRequired;

@end

@interface UILongPressGestureRecognizer : UIGestureRecognizer {
  @private
    NSTimeInterval _minimumPressDuration;
    CGFloat _allowableMovement;
}

// In seconds; half a second unless set.
@property (nonatomic) NSTimeInterval minimumPressDuration;
@property (nonatomic) CGFloat allowableMovement;

@end

@protocol UIGestureRecognizerDelegate <NSObject>
@optional
- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer*)recognizer;
- (BOOL)gestureRecognizer:(UIGestureRecognizer*)recognizer shouldReceiveTouch:(id)touch;
- (BOOL)gestureRecognizer:(UIGestureRecognizer*)recognizer
    shouldRecognizeSimultaneouslyWithGestureRecognizer:(UIGestureRecognizer*)other;
@end
