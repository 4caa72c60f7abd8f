// What the arrow of a popover points at.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@class UIBarButtonItem, UIView;

@interface UIPopoverPresentationController : NSObject {
  @private
    UIView* _sourceView;
    CGRect _sourceRect;
    UIBarButtonItem* _barButtonItem;
}

@property (nonatomic, retain) UIView* sourceView;
// In the source view's coordinates.
@property (nonatomic) CGRect sourceRect;
@property (nonatomic, retain) UIBarButtonItem* barButtonItem;

@end
