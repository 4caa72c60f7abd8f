#import "PhotosUI/PUStackView.h"

#include <objc/runtime.h>

@implementation PUStackView

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _coverView = [[UIImageView alloc] initWithFrame:[self bounds]];
    [self addSubview:_coverView];
    // The class came with iOS 10; before, the corners are part of the picture.
    Class overlayClass = objc_getClass("PXRoundedCornerOverlayView");
    if (overlayClass) {
        _cornerOverlayView = [[overlayClass alloc] initWithFrame:[self bounds]];
        [self addSubview:_cornerOverlayView];
    }
    return self;
}

- (void)dealloc {
    [_coverView release];
    [_cornerOverlayView release];
    [super dealloc];
}

- (UIImage*)coverImage {
    return [_coverView image];
}

- (void)setCoverImage:(UIImage*)image {
    [_coverView setImage:image];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [_coverView setFrame:[self bounds]];
    [_cornerOverlayView setFrame:[self bounds]];
}

@end
