#import "UIKit/UIImageView.h"

#import "UIKit/UIImage.h"
#import "UIKit/internal/MainThread.h"

@implementation UIImageView

- (instancetype)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    [self setUserInteractionEnabled:NO];
    return self;
}

- (instancetype)initWithImage:(UIImage*)image {
    const CGSize size = image ? [image size] : CGSizeZero;
    self = [self initWithFrame:{CGPointZero, size}];
    _image = [image retain];
    return self;
}

- (void)dealloc {
    [_image release];
    [super dealloc];
}

- (UIImage*)image {
    simulator::mainThreadOnly(self, _cmd);
    return [[_image retain] autorelease];
}

- (void)setImage:(UIImage*)image {
    simulator::mainThreadOnly(self, _cmd);
    [image retain];
    [_image release];
    _image = image;
}

// The override exists on the device, too, where it is more than its superclass's.
- (void)setUserInteractionEnabled:(BOOL)enabled {
    [super setUserInteractionEnabled:enabled];
}

- (CGSize)sizeThatFits:(CGSize)size {
    return _image ? [_image size] : [super sizeThatFits:size];
}

@end
