// Stand-in of the layer framework.
#pragma once

#import "CoreGraphics/CoreGraphics.h"

// The drawing surface behind a view.
@interface CALayer : NSObject {
  @private
    CGFloat _cornerRadius;
    BOOL _masksToBounds;
}

@property (nonatomic) CGFloat cornerRadius;
@property (nonatomic) BOOL masksToBounds;

@end
