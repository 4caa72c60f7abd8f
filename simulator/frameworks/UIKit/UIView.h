// A rectangle on the screen: the view tree with its geometry, autoresizing, layout and hit testing.
#pragma once

#import "CoreGraphics/CoreGraphics.h"
#import "QuartzCore/QuartzCore.h"
#import "UIKit/UIResponder.h"

@class UIColor, UIGestureRecognizer, UIViewController, UIWindow;

namespace simulator {
struct ViewState;
}

typedef NS_OPTIONS(NSUInteger, UIViewAutoresizing) {
    UIViewAutoresizingNone = 0,
    UIViewAutoresizingFlexibleLeftMargin = 1 << 0,
    UIViewAutoresizingFlexibleWidth = 1 << 1,
    UIViewAutoresizingFlexibleRightMargin = 1 << 2,
    UIViewAutoresizingFlexibleTopMargin = 1 << 3,
    UIViewAutoresizingFlexibleHeight = 1 << 4,
    UIViewAutoresizingFlexibleBottomMargin = 1 << 5,
};

typedef NS_OPTIONS(NSUInteger, UIViewAnimationOptions) {
    UIViewAnimationOptionLayoutSubviews = 1 << 0,
    UIViewAnimationOptionAllowUserInteraction = 1 << 1,
    UIViewAnimationOptionBeginFromCurrentState = 1 << 2,
    UIViewAnimationOptionRepeat = 1 << 3,
    UIViewAnimationOptionAutoreverse = 1 << 4,
    UIViewAnimationOptionCurveEaseInOut = 0 << 16,
    UIViewAnimationOptionCurveEaseIn = 1 << 16,
    UIViewAnimationOptionCurveEaseOut = 2 << 16,
    UIViewAnimationOptionCurveLinear = 3 << 16,
};

typedef NS_ENUM(NSInteger, UIViewContentMode) {
    UIViewContentModeScaleToFill = 0,
    UIViewContentModeScaleAspectFit = 1,
    UIViewContentModeScaleAspectFill = 2,
    UIViewContentModeCenter = 4,
};

@interface UIView : UIResponder {
  @private
    simulator::ViewState* _viewState;
}

- (instancetype)initWithFrame:(CGRect)frame;

// Frame (in the superview), bounds (its own) and centre always agree: changing one moves the others.
@property (nonatomic) CGRect frame;
@property (nonatomic) CGRect bounds;
@property (nonatomic) CGPoint center;
- (CGPoint)convertPoint:(CGPoint)point toView:(UIView*)view;
- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView*)view;
- (CGRect)convertRect:(CGRect)rect toView:(UIView*)view;
- (CGRect)convertRect:(CGRect)rect fromView:(UIView*)view;

@property (nonatomic) NSInteger tag;
// The receiver itself or the first view below it, at any depth, that has the tag; nil when there is none.
- (UIView*)viewWithTag:(NSInteger)tag;

@property (nonatomic, readonly, assign) UIView* superview;
@property (nonatomic, readonly) NSArray* subviews;
@property (nonatomic, readonly, assign) UIWindow* window;
- (void)addSubview:(UIView*)view;
- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index;
- (void)insertSubview:(UIView*)view belowSubview:(UIView*)sibling;
- (void)insertSubview:(UIView*)view aboveSubview:(UIView*)sibling;
- (void)bringSubviewToFront:(UIView*)view;
- (void)sendSubviewToBack:(UIView*)view;
- (void)removeFromSuperview;
- (BOOL)isDescendantOfView:(UIView*)view;
- (void)didAddSubview:(UIView*)subview;
- (void)willRemoveSubview:(UIView*)subview;
- (void)willMoveToSuperview:(UIView*)superview;
- (void)didMoveToSuperview;
- (void)willMoveToWindow:(UIWindow*)window;
- (void)didMoveToWindow;

@property (nonatomic, readonly, retain) CALayer* layer;
@property (nonatomic, getter=isHidden) BOOL hidden;
@property (nonatomic) CGFloat alpha;
@property (nonatomic, getter=isOpaque) BOOL opaque;
@property (nonatomic) BOOL clipsToBounds;
@property (nonatomic, retain) UIColor* backgroundColor;
@property (nonatomic, retain) UIColor* tintColor;
@property (nonatomic) UIViewContentMode contentMode;
@property (nonatomic, getter=isUserInteractionEnabled) BOOL userInteractionEnabled;
@property (nonatomic, copy) NSString* accessibilityIdentifier;
@property (nonatomic, copy) NSString* accessibilityLabel;

@property (nonatomic) UIViewAutoresizing autoresizingMask;
@property (nonatomic) BOOL autoresizesSubviews;

- (void)setNeedsLayout;
- (void)layoutIfNeeded;
- (void)layoutSubviews;
- (void)setNeedsDisplay;
- (CGSize)sizeThatFits:(CGSize)size;
- (void)sizeToFit;

@property (nonatomic, readonly) NSArray* gestureRecognizers;
- (void)addGestureRecognizer:(UIGestureRecognizer*)recognizer;
- (void)removeGestureRecognizer:(UIGestureRecognizer*)recognizer;

// The deepest visible view under a point of the receiver's own coordinates that takes touches, or nil. The
// event is always nil here.
- (UIView*)hitTest:(CGPoint)point withEvent:(id)event;
- (BOOL)pointInside:(CGPoint)point withEvent:(id)event;

// The controller whose view this is, or that of the nearest view above that has one.
- (UIViewController*)_viewControllerForAncestor;

@end

@interface UIView (Animation)

// The final values stand at once; the completion runs on the main run loop after delay + duration (seconds)
// of the device's clock. `animations` must not be nil, `completion` may be. Unless the options allow it, the
// views that it changes take no touches meanwhile.
+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
+ (void)animateWithDuration:(NSTimeInterval)duration
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
+ (void)animateWithDuration:(NSTimeInterval)duration animations:(void (^)(void))animations;

@end
