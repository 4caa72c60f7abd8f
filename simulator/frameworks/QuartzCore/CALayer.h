// The drawing surface behind a view: geometry always agrees with the view that owns it.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

@interface CALayer : NSObject {
  @private
    id _delegate;
    CGFloat _cornerRadius;
    CGFloat _borderWidth;
    BOOL _masksToBounds;
}

+ (instancetype)layer;

// The view that owns the layer; not retained.
@property (nonatomic, assign) id delegate;
@property (nonatomic) CGFloat cornerRadius;
@property (nonatomic) CGFloat borderWidth;
@property (nonatomic) BOOL masksToBounds;

@end
