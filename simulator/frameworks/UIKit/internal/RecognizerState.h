// Brings a touch to whom it concerns: gesture recognisers first, then the control or cell that was hit.
#pragma once

#import "UIKit/UIGestureRecognizer.h"

#include <initializer_list>

namespace simulator {

enum class Gesture { tapOrPress, pinch, hardPress };

// What fingers do at one view: so many taps, or a press held for some seconds; two fingers that move apart;
// or a press as hard as the screen can feel.
struct Touch {
    UIView* hitView = nil;
    CGPoint location = CGPointZero; // in the window
    Gesture gesture = Gesture::tapOrPress;
    NSUInteger taps = 0; // 0 for a press
    double seconds = 0;
};

void deliver(const Touch& touch);

} // namespace simulator

@interface UIGestureRecognizer ()

@property (nonatomic, assign) UIView* view;

// Whether the touch is this recogniser's gesture.
- (BOOL)recognizes:(const simulator::Touch&)touch;
// Of several that recognise a touch the lowest wins: more taps are waited for, a shorter press is over
// sooner.
- (double)rank;
// Goes through the states of the gesture, telling the target.
- (void)perform:(const simulator::Touch&)touch;
- (void)noteLocation:(CGPoint)location;
- (void)goThrough:(std::initializer_list<UIGestureRecognizerState>)states;

@end
