// A rectangle on the screen: the view tree with its geometry, autoresizing, layout and hit testing.
#pragma once

#import "CoreGraphics/CoreGraphics.h"
#import "QuartzCore/QuartzCore.h"

@class UIColor, UIGestureRecognizer, UIViewController, UIWindow;

typedef NS_OPTIONS(NSUInteger, UIViewAutoresizing) {
    UIViewAutoresizingFlexibleLeftMargin = 1 << 0,
    UIViewAutoresizingFlexibleWidth = 1 << 1,
    UIViewAutoresizingFlexibleRightMargin = 1 << 2,
    UIViewAutoresizingFlexibleTopMargin = 1 << 3,
    UIViewAutoresizingFlexibleHeight = 1 << 4,
    UIViewAutoresizingFlexibleBottomMargin = 1 << 5,
};

typedef NS_OPTIONS(NSUInteger, UIViewAnimationOptions) {
    UIViewAnimationOptionAllowUserInteraction = 1 << 1,
};

typedef NS_ENUM(NSInteger, UIViewContentMode) {
    UIViewContentModeScaleToFill = 0,
    UIViewContentModeScaleAspectFit = 1,
    UIViewContentModeScaleAspectFill = 2,
};

// Whatever can take part in the handling of events: views, controllers and the application.
@interface UIResponder : NSObject
@end

@interface UIView : UIResponder {
  @private
    CGRect _bounds;
    CGPoint _center;
    UIView* _superview;                // not retained: it retains this view
    NSMutableArray* _subviews;         // from the back to the front
    UIViewController* _viewController; // not retained: it retains this view
    CALayer* _layer;
    UIColor* _backgroundColor;
    UIColor* _tintColor;
    UIViewContentMode _contentMode;
    NSString* _accessibilityLabel;
    NSMutableArray* _gestureRecognizers;
    NSInteger _tag;
    CGFloat _alpha;
    UIViewAutoresizing _autoresizingMask;
    NSInteger _animationsWithoutTouches; // that are under way
    BOOL _autoresizesSubviews;
    BOOL _hidden;
    BOOL _opaque;
    BOOL _userInteractionEnabled;
    BOOL _needsLayout;
}

- (instancetype)initWithFrame:(CGRect)frame;

// Frame (in the superview), bounds (its own) and centre always agree: changing one moves the others.
@property (nonatomic) CGRect frame;
@property (nonatomic) CGRect bounds;
@property (nonatomic) CGPoint center;
// Between the view and another one, or its window for nil.
- (CGPoint)convertPoint:(CGPoint)point toView:(UIView*)view;
- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView*)view;

@property (nonatomic) NSInteger tag;
// The receiver itself or the first view below it, at any depth, that has the tag; nil when there is none.
- (UIView*)viewWithTag:(NSInteger)tag;

@property (nonatomic, readonly, assign) UIView* superview;
@property (nonatomic, readonly) NSArray* subviews;
@property (nonatomic, readonly, assign) UIWindow* window;
- (void)addSubview:(UIView*)view;
- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index;
- (void)bringSubviewToFront:(UIView*)view;
- (void)removeFromSuperview;
- (BOOL)isDescendantOfView:(UIView*)view;

@property (nonatomic, readonly, retain) CALayer* layer;
@property (nonatomic, getter=isHidden) BOOL hidden;
@property (nonatomic) CGFloat alpha;
@property (nonatomic, getter=isOpaque) BOOL opaque;
@property (nonatomic) BOOL clipsToBounds;
@property (nonatomic, retain) UIColor* backgroundColor;
// The colour of symbols; the system's blue for nil.
@property (nonatomic, retain) UIColor* tintColor;
// How a picture of other proportions is fitted in.
@property (nonatomic) UIViewContentMode contentMode;
// What a reader of screens says of a view that shows no words.
@property (nonatomic, copy) NSString* accessibilityLabel;
@property (nonatomic, getter=isUserInteractionEnabled) BOOL userInteractionEnabled;

@property (nonatomic) UIViewAutoresizing autoresizingMask;
@property (nonatomic) BOOL autoresizesSubviews;

// At the end of this turn of the main run loop, once however often asked for.
- (void)setNeedsLayout;
// Lays out the receiver and everything below it until nothing asks for layout any more.
- (void)layoutIfNeeded;
- (void)layoutSubviews;

@property (nonatomic, readonly) NSArray* gestureRecognizers;
- (void)addGestureRecognizer:(UIGestureRecognizer*)recognizer;

// The deepest visible view under a point of the receiver's own coordinates that takes touches, or nil. The
// event is always nil here.
- (UIView*)hitTest:(CGPoint)point withEvent:(id)event;

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

@end
